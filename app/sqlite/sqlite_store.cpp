#include "app/sqlite/sqlite_store.h"

#include "app/sqlite/data_model.h"
#include "app/sqlite/statement.h"

#include <charconv>
#include <fstream>
#include <sqlite3.h>
#include <sstream>
#include <system_error>
#include <variant>

namespace velmora {
namespace {

std::optional<std::string> readText(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    if (!in || !(text << in.rdbuf())) {
        return std::nullopt;
    }
    return text.str();
}

struct Usable {
    int version = 0;
};
struct NotOurs {
    std::string why;
};
struct Unopenable {
    std::string why;
};
using Examined = std::variant<Usable, NotOurs, Unopenable>;

std::string firstValue(sqlite3* database, const char* sql, int& status) {
    Statement query(database, sql);
    status = query.step();
    return status == SQLITE_ROW ? query.text(0) : std::string();
}

// The integer the query gives, -1 for none.
int integerValue(sqlite3* database, const char* sql) {
    int status = SQLITE_OK;
    const std::string text = firstValue(database, sql, status);
    int value = -1;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

// Reads the file without writing to it, so that one not ours can be kept aside as it was. (Open
// for writing all the same: a store in WAL mode cannot always be read by a read-only connection.)
Examined examine(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::exists(file, error) || std::filesystem::file_size(file, error) == 0) {
        return Usable{};
    }
    sqlite3* opened = nullptr;
    const int status =
        sqlite3_open_v2(file.string().c_str(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close);
    if (status != SQLITE_OK) {
        return Unopenable{opened ? sqlite3_errmsg(opened) : "out of memory"};
    }
    int step = SQLITE_OK;
    const std::string check = firstValue(opened, "PRAGMA quick_check(1)", step);
    const int primary = sqlite3_errcode(opened) & 0xff;
    if (primary == SQLITE_NOTADB || primary == SQLITE_CORRUPT) {
        return NotOurs{sqlite3_errmsg(opened)};
    }
    if (step != SQLITE_ROW) {
        return Unopenable{sqlite3_errmsg(opened)};
    }
    if (check != "ok") {
        return NotOurs{"damaged: " + check};
    }
    const std::string tables = firstValue(opened, "SELECT count(*) FROM sqlite_schema", step);
    const std::string model =
        firstValue(opened, "SELECT value FROM metadata WHERE key = 'model'", step);
    if (tables != "0" && model != "Velmora") {
        return NotOurs{"the database of another program"};
    }
    return Usable{integerValue(opened, "PRAGMA user_version")};
}

// Beside the file, a name not yet taken: Velmora.unreadable-1.sqlite, -2, ...
std::filesystem::path asideName(const std::filesystem::path& file) {
    for (int n = 1;; ++n) {
        auto name = file.parent_path() / (file.stem().string() + ".unreadable-" +
                                          std::to_string(n) + file.extension().string());
        std::error_code error;
        if (!std::filesystem::exists(name, error)) {
            return name;
        }
    }
}

} // namespace

void SqliteStore::Close::operator()(sqlite3* database) const {
    sqlite3_close(database);
}

SqliteStore::SqliteStore(std::filesystem::path file, std::optional<std::filesystem::path> dataModel)
    : file_(std::move(file)), dataModel_(std::move(dataModel)) {}

std::optional<std::string> SqliteStore::failure(const std::string& what) const {
    const char* reason = database_ ? sqlite3_errmsg(database_.get()) : "out of memory";
    return what + " " + file_.string() + ": " + reason;
}

std::optional<std::string> SqliteStore::loadPersistentStores() {
    if (!dataModel_) {
        return "the data model of " + file_.filename().string() +
               " is missing from the application's resources";
    }
    const auto model = readText(*dataModel_);
    if (!model) {
        return "cannot read the data model " + dataModel_->string();
    }
    const auto steps = dataModelSteps(*model);
    if (!steps) {
        return "the data model " + dataModel_->string() + " has no versions 1, 2, 3, ...";
    }
    std::error_code error;
    // A bare file name is in the working folder, which is there.
    if (!file_.parent_path().empty()) {
        std::filesystem::create_directories(file_.parent_path(), error);
    }
    if (error) {
        return "cannot create the folder " + file_.parent_path().string() + ": " + error.message();
    }
    const int latest = static_cast<int>(steps->size());
    std::optional<std::string> notice;
    const Examined examined = examine(file_);
    if (const auto* bad = std::get_if<Unopenable>(&examined)) {
        return "cannot open " + file_.string() + ": " + bad->why;
    }
    if (const auto* foreign = std::get_if<NotOurs>(&examined)) {
        notice.emplace();
        if (!keepAside(foreign->why, *notice)) {
            return notice;
        }
    } else if (std::get<Usable>(examined).version > latest) {
        return file_.string() + " was made by a newer version of Velmora (data model " +
               std::to_string(std::get<Usable>(examined).version) +
               "); it is left as it is and not opened";
    }
    if (auto failed = open()) {
        return failed;
    }
    if (auto failed = migrate(*steps)) {
        database_.reset();
        return failed;
    }
    return notice;
}

bool SqliteStore::keepAside(const std::string& why, std::string& message) {
    const auto aside = asideName(file_);
    std::error_code error;
    std::filesystem::rename(file_, aside, error);
    if (error) {
        message = "cannot move aside " + file_.string() + " (" + why + "): " + error.message();
        return false;
    }
    // A journal or write-ahead log belongs to the file it was written for.
    for (const char* suffix : {"-wal", "-shm", "-journal"}) {
        const auto companion = file_.string() + suffix;
        if (std::filesystem::exists(companion, error)) {
            std::filesystem::rename(companion, aside.string() + suffix, error);
        }
    }
    message = file_.string() + " could not be used (" + why + "). It was kept aside as " +
              aside.string() + " and a new, empty store started.";
    return true;
}

std::optional<std::string> SqliteStore::open() {
    sqlite3* opened = nullptr;
    const int status = sqlite3_open_v2(file_.string().c_str(), &opened,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    database_.reset(opened);
    if (status != SQLITE_OK) {
        auto message = failure("cannot open");
        database_.reset();
        return message;
    }
    // The window and the command line may use the store at the same time.
    sqlite3_busy_timeout(database_.get(), 5000);
    int step = SQLITE_OK;
    if (firstValue(database_.get(), "PRAGMA journal_mode = WAL", step) != "wal" ||
        sqlite3_exec(database_.get(), "PRAGMA foreign_keys = ON", nullptr, nullptr, nullptr) !=
            SQLITE_OK) {
        auto message = failure("cannot set up");
        database_.reset();
        return message;
    }
    return std::nullopt;
}

std::optional<std::string> SqliteStore::migrate(const std::vector<std::string>& steps) {
    const int version = integerValue(database_.get(), "PRAGMA user_version");
    if (version < 0) {
        return failure("cannot read the version of");
    }
    const int latest = static_cast<int>(steps.size());
    if (version >= latest) {
        return std::nullopt;
    }
    std::string sql = "BEGIN IMMEDIATE;";
    for (int next = version + 1; next <= latest; ++next) {
        sql += steps[next - 1];
    }
    sql += "PRAGMA user_version = " + std::to_string(latest) + "; COMMIT;";
    if (sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        auto message = failure("cannot bring to data model " + std::to_string(latest));
        sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
        return message;
    }
    return std::nullopt;
}

bool SqliteStore::hasChanges() const {
    return database_ && sqlite3_get_autocommit(database_.get()) == 0;
}

std::optional<std::string> SqliteStore::beginChanges() {
    if (!database_) {
        return "the store " + file_.string() + " is not open";
    }
    if (!hasChanges() &&
        sqlite3_exec(database_.get(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK) {
        return failure("cannot change");
    }
    return std::nullopt;
}

std::optional<std::string> SqliteStore::save() {
    if (!hasChanges()) {
        return std::nullopt;
    }
    if (sqlite3_exec(database_.get(), "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK) {
        return failure("cannot save");
    }
    return std::nullopt;
}

} // namespace velmora
