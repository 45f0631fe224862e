// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <sqlite3.h>
#include <string>
#include <string_view>

// The handles of SQLite. An object belongs to one thread at a time. Failure shows as false or
// null; the database's own text tells why.

struct SqliteClose
{
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};

using SqliteDatabase = std::unique_ptr<sqlite3, SqliteClose>;

inline bool execute(sqlite3* database, const char* sql)
{
    return sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

class SqliteStatement
{
public:
    SqliteStatement(sqlite3* database, const char* sql)
    {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
        statement_.reset(statement);
    }

    // In the order of the statement's question marks.
    SqliteStatement& bind(std::int64_t value)
    {
        sqlite3_bind_int64(statement_.get(), ++bound_, value);
        return *this;
    }
    SqliteStatement& bind(double value)
    {
        sqlite3_bind_double(statement_.get(), ++bound_, value);
        return *this;
    }
    // Bytes as they are, zeros and all.
    SqliteStatement& bind(std::string_view value)
    {
        sqlite3_bind_blob(statement_.get(), ++bound_, value.data(), static_cast<int>(value.size()),
            SQLITE_TRANSIENT);
        return *this;
    }

    // Whether there is a row to read.
    bool row()
    {
        result_ = statement_ ? sqlite3_step(statement_.get()) : SQLITE_ERROR;
        return result_ == SQLITE_ROW;
    }
    // Runs a statement to its end. Also after the last row() to learn whether it was the last.
    bool finish()
    {
        while (result_ == SQLITE_ROW)
            row();
        return result_ == SQLITE_DONE;
    }
    bool run()
    {
        row();
        return finish();
    }

    std::int64_t integer(int column) const
    {
        return sqlite3_column_int64(statement_.get(), column);
    }
    double real(int column) const { return sqlite3_column_double(statement_.get(), column); }
    std::string bytes(int column) const
    {
        const void* const data = sqlite3_column_blob(statement_.get(), column);
        const int size = sqlite3_column_bytes(statement_.get(), column);
        return size > 0
            ? std::string(static_cast<const char*>(data), static_cast<std::size_t>(size))
            : std::string();
    }

private:
    struct Finalize
    {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };

    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
    int bound_ = 0;
    int result_ = SQLITE_OK;
};
