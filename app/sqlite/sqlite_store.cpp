#include "app/sqlite/sqlite_store.h"

#include <fstream>
#include <sqlite3.h>
#include <sstream>
#include <system_error>

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
    std::error_code error;
    std::filesystem::create_directories(file_.parent_path(), error);
    if (error) {
        return "cannot create the folder " + file_.parent_path().string() + ": " + error.message();
    }
    sqlite3* opened = nullptr;
    const int status = sqlite3_open_v2(file_.string().c_str(), &opened,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    database_.reset(opened);
    if (status != SQLITE_OK) {
        auto message = failure("cannot open");
        database_.reset();
        return message;
    }
    if (sqlite3_exec(database_.get(), model->c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        auto message = failure("cannot set up");
        database_.reset();
        return message;
    }
    return std::nullopt;
}

bool SqliteStore::hasChanges() const {
    return database_ && sqlite3_get_autocommit(database_.get()) == 0;
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
