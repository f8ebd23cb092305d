#include "app/sqlite/sqlite_store.h"
#include "tests/support/temp_dir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Optional;

constexpr const char* dataModel =
    "CREATE TABLE IF NOT EXISTS metadata (key TEXT PRIMARY KEY, value TEXT);"
    "INSERT OR IGNORE INTO metadata VALUES ('model', 'Velmora');";

TEST(SqliteStore, IsCreatedWithItsFolderOnFirstUseAndOpensAgainUnchanged) {
    TempDir dir;
    const auto model = dir.write("Velmora.sql", dataModel);
    const auto file = dir.path() / "data" / "Velmora" / "Velmora.sqlite";
    for (int run = 0; run < 2; ++run) {
        SqliteStore store(file, model);
        EXPECT_EQ(store.loadPersistentStores(), std::nullopt);
        EXPECT_TRUE(store.commitEditing());
        EXPECT_FALSE(store.hasChanges());
        EXPECT_EQ(store.save(), std::nullopt);
    }
    EXPECT_TRUE(std::filesystem::is_regular_file(file));
}

TEST(SqliteStore, AnUncommittedTransactionIsAChangeThatSavingWrites) {
    TempDir dir;
    const auto model =
        dir.write("Velmora.sql", std::string(dataModel) + "BEGIN; INSERT OR REPLACE INTO metadata "
                                                          "VALUES ('note', 'kept');");
    SqliteStore store(dir.path() / "Velmora.sqlite", model);
    ASSERT_EQ(store.loadPersistentStores(), std::nullopt);
    EXPECT_TRUE(store.hasChanges());
    EXPECT_EQ(store.save(), std::nullopt);
    EXPECT_FALSE(store.hasChanges());
}

TEST(SqliteStore, TellsWhyItCannotLoad) {
    TempDir dir;
    const auto model = dir.write("Velmora.sql", dataModel);
    EXPECT_THAT(SqliteStore(dir.path() / "a.sqlite", std::nullopt).loadPersistentStores(),
                Optional(HasSubstr("data model")));
    EXPECT_THAT(
        SqliteStore(dir.path() / "b.sqlite", dir.path() / "missing.sql").loadPersistentStores(),
        Optional(HasSubstr("missing.sql")));
    const auto garbage = dir.write("garbage.sqlite", std::string(4096, 'x'));
    EXPECT_THAT(SqliteStore(garbage, model).loadPersistentStores(),
                Optional(HasSubstr("garbage.sqlite")));
    const auto blocker = dir.write("file", "");
    EXPECT_THAT(SqliteStore(blocker / "Velmora.sqlite", model).loadPersistentStores(),
                Optional(HasSubstr("cannot create the folder")));
}

} // namespace
} // namespace velmora::test
