-- An import fills a list of its own in small steps, and then makes it the current one.

CREATE TABLE listed_nets (
    list BIGINT NOT NULL,
    position INTEGER NOT NULL,
    id TEXT NOT NULL,
    name TEXT NOT NULL,
    frequency TEXT NOT NULL,
    utc TEXT NOT NULL,
    days TEXT NOT NULL,
    mode TEXT NOT NULL,
    url TEXT NOT NULL,
    PRIMARY KEY (list, position),
    UNIQUE (list, id)
);

INSERT INTO listed_nets SELECT 1, position, id, name, frequency, utc, days, mode, url FROM nets;

CREATE TABLE listed_stations (
    list BIGINT NOT NULL,
    position INTEGER NOT NULL,
    call_sign TEXT NOT NULL,
    frequency TEXT NOT NULL,
    city TEXT NOT NULL,
    power TEXT NOT NULL,
    url TEXT NOT NULL,
    PRIMARY KEY (list, position)
);

INSERT INTO listed_stations SELECT 1, position, call_sign, frequency, city, power, url FROM stations;

-- Without a reference to the nets: their lists come and go.
CREATE TABLE kept_sessions (
    net TEXT NOT NULL,
    starts BIGINT NOT NULL,
    confirmed INTEGER NOT NULL,
    PRIMARY KEY (net, starts)
);

INSERT INTO kept_sessions SELECT net, starts, confirmed FROM sessions;

CREATE TABLE kept_confirmations (
    operator TEXT NOT NULL,
    net TEXT NOT NULL,
    starts BIGINT NOT NULL,
    PRIMARY KEY (operator, net, starts),
    FOREIGN KEY (net, starts) REFERENCES kept_sessions (net, starts) ON DELETE CASCADE
);

INSERT INTO kept_confirmations SELECT operator, net, starts FROM confirmations;

DROP TABLE confirmations;
DROP TABLE sessions;
DROP TABLE nets;
DROP TABLE stations;
ALTER TABLE listed_nets RENAME TO nets;
ALTER TABLE listed_stations RENAME TO stations;
ALTER TABLE kept_sessions RENAME TO sessions;
ALTER TABLE kept_confirmations RENAME TO confirmations;

CREATE INDEX confirmations_of_session ON confirmations (net, starts);
CREATE INDEX nets_by_name ON nets (list, name);

-- The number of the last list that was begun, and the current ones.
ALTER TABLE catalogue ADD COLUMN lists BIGINT NOT NULL DEFAULT 1;
ALTER TABLE catalogue ADD COLUMN nets_list BIGINT NOT NULL DEFAULT 1;
ALTER TABLE catalogue ADD COLUMN stations_list BIGINT NOT NULL DEFAULT 1;

-- Written to see whether check-ins can be stored.
CREATE TABLE health (
    checks BIGINT NOT NULL
);

INSERT INTO health (checks) VALUES (0);
