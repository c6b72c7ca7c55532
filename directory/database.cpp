#include "database.h"

#include <sys/stat.h>

#include <QSqlError>
#include <QUrl>
#include <QUrlQuery>
#include <algorithm>
#include <array>
#include <atomic>
#include <filesystem>
#include <thread>

#include "migrations.h"

namespace corvane::directory {

namespace {

struct Cause {
    std::string_view code;  // of SQLite; of PostgreSQL the whole code or how it begins
    std::string_view reason;
};

constexpr std::array sqliteCauses{
    Cause{"5", "locked"}, Cause{"6", "locked"}, Cause{"8", "read-only"}, Cause{"13", "full"}, Cause{"14", "gone"},
};

constexpr std::array postgresCauses{
    Cause{"53100", "full"},      Cause{"55P03", "locked"}, Cause{"57014", "locked"}, Cause{"40", "locked"},
    Cause{"25006", "read-only"}, Cause{"42501", "denied"}, Cause{"08", "gone"},      Cause{"57P", "gone"},
};

std::string_view reasonOf(const QSqlError& error, bool postgres) {
    const std::string code = error.nativeErrorCode().toStdString();
    if (postgres) {
        const auto* const cause =
            std::ranges::find_if(postgresCauses, [&](const Cause& each) { return code.starts_with(each.code); });
        if (cause != postgresCauses.end()) return cause->reason;
        return code.empty() ? "gone" : "failed";
    }
    const std::string primary = std::to_string(error.nativeErrorCode().toInt() & 0xff);
    const auto* const cause = std::ranges::find(sqliteCauses, primary, &Cause::code);
    return cause == sqliteCauses.end() ? "failed" : cause->reason;
}

unsigned long long fileNumber(const std::string& path) {
    struct stat file {};
    return stat(path.c_str(), &file) == 0 ? file.st_ino : 0;
}

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

QSqlDatabase connectionTo(const DatabaseLocation& location, Database::Open open) {
    if (!location.isPostgres()) {
        const auto path = std::filesystem::absolute(location.path());
        const QUrl file = QUrl::fromLocalFile(QString::fromStdString(path.string()));
        const QString mode = open == Database::Open::existing ? "?mode=rw" : "?mode=rwc";
        QSqlDatabase sqlite = QSqlDatabase::addDatabase("QSQLITE", nextName());
        sqlite.setDatabaseName(file.toString(QUrl::FullyEncoded) + mode);
        sqlite.setConnectOptions("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=1500");
        return sqlite;
    }
    const QUrl url(QString::fromStdString(location.url()));
    QSqlDatabase server = QSqlDatabase::addDatabase("QPSQL", nextName());
    server.setHostName(url.host());
    server.setPort(url.port());
    server.setUserName(url.userName(QUrl::FullyDecoded));
    server.setPassword(url.password(QUrl::FullyDecoded));
    server.setDatabaseName(url.path(QUrl::FullyDecoded).remove(0, 1));
    server.setConnectOptions("connect_timeout=2;tcp_user_timeout=3000;" + postgresOptions(url));
    return server;
}

void disconnect(QSqlDatabase& connection) {
    const QString name = connection.connectionName();
    connection = {};
    QSqlDatabase::removeDatabase(name);
}

}  // namespace

Database::Database(const DatabaseLocation& location, Open open)
    : location_(location), connection_(connectionTo(location, open)) {
    try {
        if (!connection_.open()) fail(connection_.lastError());
        if (isPostgres()) {
            run("SET client_min_messages TO warning");
            run("SET lock_timeout TO 1500");
            return;
        }
        if (open == Open::orNewFile) run("PRAGMA journal_mode=WAL");  // stays with the file
        // Acknowledged check-ins must survive a power cut: FULL syncs to disk at each commit.
        for (const char* pragma : {"PRAGMA synchronous=FULL", "PRAGMA foreign_keys=ON"}) run(pragma);
        file_ = fileNumber(location_.path());
    } catch (...) {
        disconnect(connection_);
        throw;
    }
}

Database::~Database() { disconnect(connection_); }

void Database::fail(const QSqlError& error) const {
    throw DatabaseError(location_.name() + ": " + error.text().trimmed().toStdString(), reasonOf(error, isPostgres()));
}

void Database::checkPlace() const {
    if (!isPostgres() && fileNumber(location_.path()) != file_)
        throw DatabaseError(location_.name() + ": the file has been removed or replaced", "gone");
}

bool Database::hasTable(const char* name) {
    Statement find(*this, isPostgres() ? "SELECT 1 WHERE to_regclass(?) IS NOT NULL"
                                       : "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?");
    const bool found = find.run(std::string(name)).next();
    return found;
}

void Database::run(const char* statement) {
    QSqlQuery query(connection_);
    if (!query.exec(statement)) fail(query.lastError());
}

Statement::Statement(Database& database, const char* text)
    : database_(database), query_(database.connection()), text_(text) {
    query_.setForwardOnly(true);
}

void Statement::prepare() {
    if (prepared_) return;
    if (!query_.prepare(text_)) database_.fail(query_.lastError());
    prepared_ = true;
}

void Statement::execute() {
    if (!query_.exec()) database_.fail(query_.lastError());
}

bool Statement::next() {
    if (query_.next()) return true;
    if (query_.lastError().isValid()) database_.fail(query_.lastError());
    query_.finish();  // an open reader would keep an old view of the data
    return false;
}

// IMMEDIATE: SQLite may refuse a write lock without waiting if the transaction has read first. It waits for a lock in
// steps of up to 100 ms, and would miss the pauses of an import.
Transaction::Transaction(Database& database, std::chrono::milliseconds patience) : database_(database) {
    using namespace std::chrono_literals;
    if (database_.isPostgres()) {
        database_.run("BEGIN");
        return;
    }
    database_.checkPlace();
    database_.run("PRAGMA busy_timeout=0");
    const auto start = std::chrono::steady_clock::now();
    for (QSqlQuery query(database_.connection()); !query.exec("BEGIN IMMEDIATE"); std::this_thread::sleep_for(2ms)) {
        if (std::chrono::steady_clock::now() - start < patience && reasonOf(query.lastError(), false) == "locked")
            continue;
        const QSqlError error = query.lastError();
        database_.run("PRAGMA busy_timeout=1500");
        database_.fail(error);
    }
    database_.run("PRAGMA busy_timeout=1500");
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
    Transaction transaction(database, std::chrono::minutes(1));
    if (database.isPostgres()) database.run("SELECT pg_advisory_xact_lock(8073)");  // another service may start, too
    if (!database.hasTable("migrations")) database.run("CREATE TABLE migrations (number INTEGER PRIMARY KEY)");
    long long seen = 0;
    Statement numbers(database, "SELECT number FROM migrations ORDER BY number");
    for (numbers.run(); numbers.next();) seen = numbers.number(0);
    if (seen > static_cast<long long>(std::size(migrations)))
        throw DatabaseError("This database belongs to a newer corvane-directory.", "newer");
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
