// The modules the application loads on first use, found from the executable as it finds them.

#include "app/qt/module_report_output.h"
#include "app/qt/sqlite_store_loader.h"
#include "tests/support/temp_dir.h"

#include <fstream>
#include <gmock/gmock.h>

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

// In the window's process, beside its application object: a page a record, or why not.
TEST(Modules, TheReportFromItsModuleIsAPdfOfAPageARecord) {
    TempDir dir;
    std::vector<StoneRecord> records(2);
    records[0].label = "Lot 7";
    records[1].label = "Lot 8";
    records[1].ri = {{1.544, 1.553}, 1.544, 1.553, 0.009, "doubly refractive"};
    qt::ModuleReportOutput report(",");
    const auto file = dir.path() / "report.pdf";
    EXPECT_EQ(report.writePdf(records, file), std::nullopt);
    std::ifstream in(file, std::ios::binary);
    const std::string pdf((std::istreambuf_iterator<char>(in)), {});
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    EXPECT_THAT(pdf, HasSubstr("/Count 2"));

    const auto unwritable = dir.path() / "no such folder" / "report.pdf";
    EXPECT_THAT(report.writePdf(records, unwritable).value_or(""), HasSubstr("cannot write"));
}

} // namespace
} // namespace velmora::test
