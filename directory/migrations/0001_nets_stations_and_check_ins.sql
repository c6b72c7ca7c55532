-- Statements end with ";" at the end of a line. They run on SQLite and PostgreSQL alike.

CREATE TABLE nets (
    id TEXT PRIMARY KEY,
    position INTEGER NOT NULL,
    name TEXT NOT NULL,
    frequency TEXT NOT NULL,
    utc TEXT NOT NULL,
    days TEXT NOT NULL,
    mode TEXT NOT NULL,
    url TEXT NOT NULL
);

CREATE TABLE stations (
    position INTEGER PRIMARY KEY,
    call_sign TEXT NOT NULL,
    frequency TEXT NOT NULL,
    city TEXT NOT NULL,
    power TEXT NOT NULL,
    url TEXT NOT NULL
);

-- A session of a net, by the time of its start in seconds since 1970, with how many operators have confirmed it.
CREATE TABLE sessions (
    net TEXT NOT NULL REFERENCES nets (id) ON DELETE CASCADE,
    starts BIGINT NOT NULL,
    confirmed INTEGER NOT NULL,
    PRIMARY KEY (net, starts)
);

CREATE TABLE confirmations (
    operator TEXT NOT NULL,
    net TEXT NOT NULL,
    starts BIGINT NOT NULL,
    PRIMARY KEY (operator, net, starts),
    FOREIGN KEY (net, starts) REFERENCES sessions (net, starts) ON DELETE CASCADE
);

-- Ending a session must find its confirmations.
CREATE INDEX confirmations_of_session ON confirmations (net, starts);

-- Counts the imports, so that a running service sees them.
CREATE TABLE catalogue (
    revision BIGINT NOT NULL
);

INSERT INTO catalogue (revision) VALUES (0);
