// The modules the application loads on first use, found from the executable as it finds them.

#include "app/qt/module_loader.h"
#include "app/qt/sqlite_store_loader.h"
#include "tests/support/temp_dir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using ::testing::HasSubstr;

TEST(Modules, TheStoreFromItsModuleIsTheSqliteFileMadeOnFirstUse) {
    TempDir dir;
    const auto model = dir.write("Velmora.sql", "-- version 1\nCREATE TABLE note (text TEXT);");
    const auto file = dir.path() / "data" / "Velmora.sqlite";
    const auto store = qt::loadSqliteStore(file, model);
    EXPECT_EQ(store->loadPersistentStores(), std::nullopt);
    EXPECT_FALSE(store->hasChanges());
    EXPECT_TRUE(std::filesystem::is_regular_file(file));
}

TEST(Modules, AMissingModuleOrFunctionIsNamedInTheError) {
    const struct {
        const char* module;
        const char* function;
        const char* named;
    } cases[] = {
        {"velmora_no_such_module", "velmora_makeSqliteStore", "velmora_no_such_module"},
        {"velmora_sqlite_store", "velmora_noSuchFunction", "velmora_noSuchFunction"},
    };
    for (const auto& c : cases) {
        QString error;
        EXPECT_EQ(qt::resolveModuleFunction(c.module, c.function, error), nullptr) << c.module;
        EXPECT_THAT(error.toStdString(), HasSubstr(c.named));
    }
}

} // namespace
} // namespace velmora::test
