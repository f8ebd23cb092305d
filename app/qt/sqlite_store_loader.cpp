#include "app/qt/sqlite_store_loader.h"

#include "app/qt/module_loader.h"
#include "app/sqlite/sqlite_store_module.h"

namespace velmora::qt {
namespace {

class UnloadedStore final : public PersistentStore {
public:
    explicit UnloadedStore(std::string why) : why_(std::move(why)) {}

    std::optional<std::string> loadPersistentStores() override { return why_; }
    bool commitEditing() override { return true; }
    bool hasChanges() const override { return false; }
    std::optional<std::string> save() override { return std::nullopt; }

private:
    std::string why_;
};

} // namespace

std::unique_ptr<PersistentStore>
loadSqliteStore(const std::filesystem::path& file,
                const std::optional<std::filesystem::path>& dataModel) {
    QString error;
    const auto makeStore = moduleFunction<sqlite_store_module::MakeStore>(
        sqlite_store_module::name, sqlite_store_module::makeStore, error);
    if (!makeStore) {
        return std::make_unique<UnloadedStore>(error.toStdString());
    }
    return std::unique_ptr<PersistentStore>(makeStore(file, dataModel));
}

} // namespace velmora::qt
