#include "database.h"

#include <QSqlError>
#include <QUrl>
#include <QUrlQuery>
#include <atomic>

#include "migrations.h"

namespace corvane::directory {

namespace {

[[noreturn]] void fail(const QSqlError& error) { throw DatabaseError(error.text().trimmed().toStdString()); }

QString nextName() {
    static std::atomic<int> number = 0;  // every connection of the process needs its own name
    return "directory" + QString::number(++number);
}

// The options in the URL's query, in the driver's form: "options='-csearch_path=club';".
QString postgresOptions(const QUrl& url) {
    QString options;
    for (const auto& [name, value] : QUrlQuery(url).queryItems(QUrl::FullyDecoded)) {
        QString quoted = value;
        quoted.replace('\\', "\\\\").replace('\'', "\\'");
        options += name + "='" + quoted + "';";
    }
    return options;
}

QSqlDatabase connectionTo(const std::string& location) {
    if (!location.starts_with("postgresql://")) {
        QSqlDatabase file = QSqlDatabase::addDatabase("QSQLITE", nextName());
        file.setDatabaseName(QString::fromStdString(location));
        file.setConnectOptions("QSQLITE_BUSY_TIMEOUT=5000");
        return file;
    }
    const QUrl url(QString::fromStdString(location));
    QSqlDatabase server = QSqlDatabase::addDatabase("QPSQL", nextName());
    server.setHostName(url.host());
    server.setPort(url.port());
    server.setUserName(url.userName(QUrl::FullyDecoded));
    server.setPassword(url.password(QUrl::FullyDecoded));
    server.setDatabaseName(url.path(QUrl::FullyDecoded).remove(0, 1));
    server.setConnectOptions(postgresOptions(url));
    return server;
}

}  // namespace

Database::Database(const std::string& location) : connection_(connectionTo(location)) {
    if (!connection_.open()) {
        const QSqlError error = connection_.lastError();
        const QString name = connection_.connectionName();
        connection_ = {};
        QSqlDatabase::removeDatabase(name);
        fail(error);
    }
    if (isPostgres()) {
        run("SET client_min_messages TO warning");  // no notices that a table exists already
        return;
    }
    // Acknowledged check-ins must survive a power cut: FULL syncs to disk at each commit.
    for (const char* pragma : {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL", "PRAGMA foreign_keys=ON"})
        run(pragma);
}

Database::~Database() {
    const QString name = connection_.connectionName();
    connection_ = {};
    QSqlDatabase::removeDatabase(name);
}

bool Database::isPostgres() const { return connection_.driverName() == "QPSQL"; }

void Database::run(const char* statement) {
    QSqlQuery query(connection_);
    if (!query.exec(statement)) fail(query.lastError());
}

Statement::Statement(Database& database, const char* text) : query_(database.connection()) {
    query_.setForwardOnly(true);
    if (!query_.prepare(text)) fail(query_.lastError());
}

void Statement::execute() {
    if (!query_.exec()) fail(query_.lastError());
}

bool Statement::next() {
    if (query_.next()) return true;
    if (query_.lastError().isValid()) fail(query_.lastError());
    query_.finish();  // an open reader would keep an old view of the data
    return false;
}

// IMMEDIATE: SQLite may refuse a write lock without waiting if the transaction has read first.
Transaction::Transaction(Database& database) : database_(database) {
    database_.run(database_.isPostgres() ? "BEGIN" : "BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
    if (!open_) return;
    QSqlQuery query(database_.connection());
    query.exec("ROLLBACK");  // if this fails, the connection is lost, and so is the transaction
}

void Transaction::commit() {
    database_.run("COMMIT");
    open_ = false;
}

void migrate(Database& database) {
    Transaction transaction(database);
    database.run("CREATE TABLE IF NOT EXISTS migrations (number INTEGER PRIMARY KEY)");
    long long seen = 0;
    Statement numbers(database, "SELECT number FROM migrations ORDER BY number");
    for (numbers.run(); numbers.next();) seen = numbers.number(0);
    long long number = 0;
    for (const char* const migration : migrations) {
        if (++number <= seen) continue;
        for (const QString& statement : QString::fromUtf8(migration).split(";\n", Qt::SkipEmptyParts))
            database.run(statement.toUtf8().constData());
        Statement(database, "INSERT INTO migrations (number) VALUES (?)").run(number);
    }
    transaction.commit();
}

}  // namespace corvane::directory
