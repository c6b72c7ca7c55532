// A connection to the database: an SQLite file, or PostgreSQL. The same statements run on both.
#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <chrono>
#include <stdexcept>
#include <string>

#include "database_location.h"

namespace corvane::directory {

// Says which database failed, and how.
struct DatabaseError : std::runtime_error {
    DatabaseError(const std::string& what, std::string_view why) : std::runtime_error(what), reason(why) {}

    // "full", "locked", "read-only", "gone", "denied"; "failed" for anything else, as a statement that it refuses.
    std::string_view reason;
};

// Used only in the thread that made it. Every operation throws DatabaseError when the database fails. A lock of another
// process is waited for up to 1.5 s.
class Database {
public:
    enum class Open { existing, orNewFile };

    explicit Database(const DatabaseLocation& location, Open open = Open::existing);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    void run(const char* statement);
    QSqlDatabase& connection() { return connection_; }
    bool isPostgres() const { return location_.isPostgres(); }
    bool hasTable(const char* name);
    // Fails when the file that was opened no longer stands at its path: what is written to it would be lost.
    void checkPlace() const;
    [[noreturn]] void fail(const QSqlError& error) const;

private:
    const DatabaseLocation location_;
    QSqlDatabase connection_;
    unsigned long long file_ = 0;  // the number of the file that was opened
};

// A statement with "?" for each value, prepared when it first runs: preparing one that writes may wait for a lock.
class Statement {
public:
    Statement(Database& database, const char* text);

    template <class... Values>
    Statement& run(const Values&... values) {
        prepare();
        int place = 0;
        (query_.bindValue(place++, value(values)), ...);
        execute();
        return *this;
    }
    // Goes to the next row, at first to the first one. Call it until it returns false.
    bool next();
    std::string text(int column) const { return query_.value(column).toString().toStdString(); }
    long long number(int column) const { return query_.value(column).toLongLong(); }
    int changedRows() const { return query_.numRowsAffected(); }

private:
    static QVariant value(const std::string& text) { return QString::fromStdString(text); }
    static QVariant value(long long number) { return number; }
    void prepare();
    void execute();

    const Database& database_;
    QSqlQuery query_;
    const QString text_;
    bool prepared_ = false;
};

// All changes from here to commit() are stored, or none. Waits for other writers.
class Transaction {
public:
    static constexpr std::chrono::milliseconds lockPatience{1500};

    explicit Transaction(Database& database, std::chrono::milliseconds patience = lockPatience);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

private:
    Database& database_;
    bool open_ = true;
};

// Runs the migrations that have not been run on this database. Refuses a database of a newer version.
void migrate(Database& database);

}  // namespace corvane::directory
