#pragma once

// One prepared SQLite statement, finalized when it goes. Binding an absent value binds NULL.

#include <optional>
#include <sqlite3.h>
#include <string>
#include <string_view>

namespace velmora {

class Statement {
public:
    Statement(sqlite3* database, std::string_view sql) {
        if (sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &statement_,
                               nullptr) != SQLITE_OK) {
            statement_ = nullptr;
        }
    }
    ~Statement() { sqlite3_finalize(statement_); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    bool prepared() const { return statement_ != nullptr; }

    Statement& bind(int index, std::string_view text) {
        sqlite3_bind_text(statement_, index, text.data(), static_cast<int>(text.size()),
                          SQLITE_TRANSIENT);
        return *this;
    }
    Statement& bind(int index, std::int64_t value) {
        sqlite3_bind_int64(statement_, index, value);
        return *this;
    }
    Statement& bind(int index, std::optional<double> value) {
        if (value) {
            sqlite3_bind_double(statement_, index, *value);
        } else {
            sqlite3_bind_null(statement_, index);
        }
        return *this;
    }

    // SQLITE_ROW, SQLITE_DONE or an error.
    int step() { return statement_ ? sqlite3_step(statement_) : SQLITE_ERROR; }
    bool run() {
        const bool done = step() == SQLITE_DONE;
        sqlite3_reset(statement_);
        sqlite3_clear_bindings(statement_);
        return done;
    }

    std::string text(int column) const {
        const auto* bytes = sqlite3_column_text(statement_, column);
        return bytes
                   ? std::string(reinterpret_cast<const char*>(bytes),
                                 static_cast<std::size_t>(sqlite3_column_bytes(statement_, column)))
                   : std::string();
    }
    std::int64_t integer(int column) const { return sqlite3_column_int64(statement_, column); }
    std::optional<double> real(int column) const {
        if (sqlite3_column_type(statement_, column) == SQLITE_NULL) {
            return std::nullopt;
        }
        return sqlite3_column_double(statement_, column);
    }

private:
    sqlite3_stmt* statement_ = nullptr;
};

} // namespace velmora
