#include "app/sqlite/sqlite_store.h"
#include "tests/support/temp_dir.h"

#include <fstream>
#include <gmock/gmock.h>
#include <sqlite3.h>
#include <sstream>

namespace velmora::test {
namespace {

using ::testing::AllOf, ::testing::HasSubstr, ::testing::Optional;

const std::filesystem::path dataModel = VELMORA_SOURCE_DIR "/resources/Velmora.sql";

// The data model as version 1 of the application shipped it: run as it stands, with no
// user_version mark.
constexpr const char* releasedVersion1 =
    "CREATE TABLE IF NOT EXISTS metadata (key TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL);"
    "INSERT OR IGNORE INTO metadata (key, value) VALUES ('model', 'Velmora');"
    "INSERT OR IGNORE INTO metadata (key, value) VALUES ('version', '1');";

std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

// Runs SQL on the file as another program would; the first column of the last row it gives.
std::string sql(const std::filesystem::path& file, const std::string& statements) {
    sqlite3* database = nullptr;
    sqlite3_open(file.string().c_str(), &database);
    std::string value;
    sqlite3_exec(
        database, statements.c_str(),
        [](void* out, int, char** columns, char**) {
            *static_cast<std::string*>(out) = columns[0] ? columns[0] : "NULL";
            return 0;
        },
        &value, nullptr);
    sqlite3_close(database);
    return value;
}

StoneRecord fullRecord() {
    StoneRecord r;
    r.label = "lot 7, \"blue\"\nsecond line";
    r.examined = std::chrono::sys_days(std::chrono::year(2026) / 11 / 23) + std::chrono::hours(9);
    r.ri = {{1.544, 1.553, 1.549}, 1.544, 1.553, 0.009, "doubly refractive, birefringence 0.009"};
    r.sg = 2.651;
    r.weighing = Weighing{1.2, 0.747};
    r.hardness = 7;
    r.color = "Purple";
    r.notes = "Étiquette: 石";
    r.candidates = {{"2", "Quartz: Amethyst, Citrine", 100}, {"185", "Iolite", 61}};
    r.conclusion = "Amethyst";
    return r;
}

// Every field, for comparing records whole; none for no record.
auto fields(const std::optional<StoneRecord>& found) {
    StoneRecord r = found.value_or(StoneRecord());
    r.label = found ? r.label : "no record";
    std::vector<std::tuple<std::string, std::string, int>> candidates;
    for (const auto& c : r.candidates) {
        candidates.emplace_back(c.number, c.name, c.fit);
    }
    const auto weighing = r.weighing
                              ? std::optional(std::pair(r.weighing->inAir, r.weighing->inWater))
                              : std::nullopt;
    return std::tuple(r.id, r.label, r.examined.time_since_epoch().count(), r.ri.values, r.ri.low,
                      r.ri.high, r.ri.birefringence, r.ri.verdict, r.sg, weighing, r.hardness,
                      r.color, r.notes, candidates, r.conclusion);
}
template <class... Records> auto allFields(const Records&... records) {
    return std::vector{fields(records)...};
}

TEST(SqliteStore, AddedRecordsAreChangesUntilSavedComeBackWholeNewestFirstAndChangeAsTold) {
    TempDir dir;
    const auto file = dir.path() / "data" / "Velmora" / "Velmora.sqlite";
    StoneRecord older = fullRecord();
    StoneRecord sameTimeLater = older;
    sameTimeLater.label = "same time, added later";
    StoneRecord bare;
    bare.label = "nothing measured";
    bare.examined = older.examined + std::chrono::seconds(1);
    {
        SqliteStore store(file, dataModel);
        ASSERT_EQ(store.loadPersistentStores(), std::nullopt);
        for (StoneRecord* r : {&older, &sameTimeLater, &bare}) {
            EXPECT_EQ(store.add(*r), std::nullopt);
        }
        EXPECT_TRUE(store.hasChanges());
        EXPECT_EQ(sql(file, "SELECT count(*) FROM stone_record"), "0");
        EXPECT_EQ(store.save(), std::nullopt);
        EXPECT_FALSE(store.hasChanges());
    }
    EXPECT_EQ(sql(file, "PRAGMA journal_mode"), "wal");
    SqliteStore store(file, dataModel);
    ASSERT_EQ(store.loadPersistentStores(), std::nullopt);
    std::vector<StoneRecord> listed;
    ASSERT_EQ(store.list(listed), std::nullopt);
    ASSERT_EQ(listed.size(), 3u);
    EXPECT_EQ(allFields(listed[0], listed[1], listed[2]), allFields(bare, sameTimeLater, older));
    std::optional<StoneRecord> found;
    ASSERT_EQ(store.find(older.id, found), std::nullopt);
    EXPECT_EQ(fields(found), fields(older));
    EXPECT_EQ(store.find(older.id + 100, found), std::nullopt);
    EXPECT_FALSE(found);

    // Only the notes and the conclusion are edited; a removed record goes whole.
    StoneRecord edited = older;
    edited.notes = "inclusions: needles";
    edited.conclusion = "Citrine";
    edited.label = "not edited";
    edited.candidates.clear();
    EXPECT_EQ(store.update(edited), std::nullopt);
    EXPECT_EQ(store.remove(sameTimeLater.id), std::nullopt);
    EXPECT_TRUE(store.hasChanges());
    ASSERT_EQ(store.save(), std::nullopt);
    older.notes = edited.notes;
    older.conclusion = edited.conclusion;
    ASSERT_EQ(store.list(listed), std::nullopt);
    ASSERT_EQ(listed.size(), 2u);
    EXPECT_EQ(fields(listed[1]), fields(older));
    const std::string removed = " WHERE record_id = " + std::to_string(sameTimeLater.id);
    EXPECT_EQ(sql(file, "SELECT count(*) FROM candidate" + removed), "0");
    EXPECT_EQ(sql(file, "SELECT count(*) FROM ri_reading" + removed), "0");
}

// Another program's rule refuses the second candidate, after the record and its readings went in.
TEST(SqliteStore, ARecordThatCannotGoInWholeLeavesNothingBehind) {
    TempDir dir;
    const auto file = dir.path() / "Velmora.sqlite";
    SqliteStore store(file, dataModel);
    ASSERT_EQ(store.loadPersistentStores(), std::nullopt);
    sql(file, "CREATE TRIGGER refuse BEFORE INSERT ON candidate WHEN NEW.name = 'Iolite' "
              "BEGIN SELECT RAISE(ABORT, 'refused'); END;");
    StoneRecord kept = fullRecord();
    kept.candidates.pop_back();
    StoneRecord refused = fullRecord();
    EXPECT_EQ(store.add(kept), std::nullopt);
    EXPECT_THAT(store.add(refused), Optional(HasSubstr("refused")));
    ASSERT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(sql(file, "SELECT (SELECT count(*) FROM stone_record) || (SELECT count(*) FROM "
                        "ri_reading) || (SELECT count(*) FROM candidate)"),
              "131");
}

TEST(SqliteStore, KeepsAsideUntouchedAFileNotOursAndStartsANewStore) {
    TempDir dir;
    const auto file = dir.write("Velmora.sqlite", std::string(4096, 'x'));
    SqliteStore store(file, dataModel);
    const auto message = store.loadPersistentStores();
    const auto aside = dir.path() / "Velmora.unreadable-1.sqlite";
    EXPECT_THAT(message, Optional(AllOf(HasSubstr("not a database"), HasSubstr(aside.string()))));
    EXPECT_EQ(bytesOf(aside), std::string(4096, 'x'));
    ASSERT_NE(store.records(), nullptr);
    StoneRecord record = fullRecord();
    EXPECT_EQ(store.add(record), std::nullopt);
    EXPECT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(sql(file, "SELECT count(*) FROM stone_record"), "1");
}

TEST(SqliteStore, LeavesAStoreOfANewerVersionAloneAndDoesNotOpenIt) {
    TempDir dir;
    const auto file = dir.path() / "Velmora.sqlite";
    sql(file, std::string(releasedVersion1) + "PRAGMA user_version = 99;");
    const std::string before = bytesOf(file);
    SqliteStore store(file, dataModel);
    EXPECT_THAT(store.loadPersistentStores(), Optional(HasSubstr("newer version")));
    EXPECT_EQ(store.records(), nullptr);
    EXPECT_EQ(bytesOf(file), before);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 1);
}

} // namespace
} // namespace velmora::test
