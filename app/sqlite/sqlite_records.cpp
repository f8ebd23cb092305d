// The stone records of SqliteStore: one row in stone_record, its readings in ri_reading and its
// candidates in candidate.

#include "app/sqlite/sqlite_store.h"
#include "app/sqlite/statement.h"

#include <map>
#include <sqlite3.h>

namespace velmora {
namespace {

constexpr const char* recordColumns =
    "SELECT id, label, examined, ri_low, ri_high, birefringence, verdict, sg, weight_air, "
    "weight_water, hardness, color, notes, conclusion FROM stone_record ";

StoneRecord recordOf(const Statement& row) {
    StoneRecord r;
    r.id = row.integer(0);
    r.label = row.text(1);
    r.examined = parseIsoTime(row.text(2)).value_or(std::chrono::sys_seconds{});
    r.ri.low = row.real(3);
    r.ri.high = row.real(4);
    r.ri.birefringence = row.real(5);
    r.ri.verdict = row.text(6);
    r.sg = row.real(7);
    if (const auto air = row.real(8), water = row.real(9); air && water) {
        r.weighing = Weighing{*air, *water};
    }
    r.hardness = row.real(10);
    r.color = row.text(11);
    r.notes = row.text(12);
    r.conclusion = row.text(13);
    return r;
}

// The records the query picks, with their readings and candidates; id binds the query's ?1.
bool readRecords(sqlite3* database, const std::string& where, std::optional<RecordId> id,
                 std::vector<StoneRecord>& records) {
    Statement query(database, recordColumns + where);
    if (id) {
        query.bind(1, *id);
    }
    std::map<RecordId, std::size_t> index;
    int status = SQLITE_OK;
    while ((status = query.step()) == SQLITE_ROW) {
        records.push_back(recordOf(query));
        index[records.back().id] = records.size() - 1;
    }
    if (status != SQLITE_DONE) {
        return false;
    }
    const std::string restrict = id ? " WHERE record_id = ?1" : "";
    Statement readings(database, "SELECT record_id, value FROM ri_reading" + restrict +
                                     " ORDER BY record_id, position");
    Statement candidates(database, "SELECT record_id, number, name, fit FROM candidate" + restrict +
                                       " ORDER BY record_id, position");
    if (id) {
        readings.bind(1, *id);
        candidates.bind(1, *id);
    }
    while ((status = readings.step()) == SQLITE_ROW) {
        if (const auto at = index.find(readings.integer(0)); at != index.end()) {
            records[at->second].ri.values.push_back(readings.real(1).value_or(0));
        }
    }
    if (status != SQLITE_DONE) {
        return false;
    }
    while ((status = candidates.step()) == SQLITE_ROW) {
        if (const auto at = index.find(candidates.integer(0)); at != index.end()) {
            records[at->second].candidates.push_back(
                {candidates.text(1), candidates.text(2), static_cast<int>(candidates.integer(3))});
        }
    }
    return status == SQLITE_DONE;
}

bool insert(sqlite3* database, StoneRecord& r) {
    Statement row(database,
                  "INSERT INTO stone_record (label, examined, ri_low, ri_high, birefringence, "
                  "verdict, sg, weight_air, weight_water, hardness, color, notes, conclusion) "
                  "VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13)");
    row.bind(1, r.label)
        .bind(2, isoTimeText(r.examined))
        .bind(3, r.ri.low)
        .bind(4, r.ri.high)
        .bind(5, r.ri.birefringence)
        .bind(6, r.ri.verdict)
        .bind(7, r.sg)
        .bind(8, r.weighing ? std::optional(r.weighing->inAir) : std::nullopt)
        .bind(9, r.weighing ? std::optional(r.weighing->inWater) : std::nullopt)
        .bind(10, r.hardness)
        .bind(11, r.color)
        .bind(12, r.notes)
        .bind(13, r.conclusion);
    if (!row.run()) {
        return false;
    }
    const RecordId id = sqlite3_last_insert_rowid(database);
    Statement reading(database,
                      "INSERT INTO ri_reading (record_id, position, value) VALUES (?1, ?2, ?3)");
    for (std::size_t i = 0; i < r.ri.values.size(); ++i) {
        if (!reading.bind(1, id)
                 .bind(2, static_cast<std::int64_t>(i))
                 .bind(3, std::optional(r.ri.values[i]))
                 .run()) {
            return false;
        }
    }
    Statement candidate(database, "INSERT INTO candidate (record_id, position, number, name, fit) "
                                  "VALUES (?1, ?2, ?3, ?4, ?5)");
    for (std::size_t i = 0; i < r.candidates.size(); ++i) {
        const auto& c = r.candidates[i];
        if (!candidate.bind(1, id)
                 .bind(2, static_cast<std::int64_t>(i))
                 .bind(3, c.number)
                 .bind(4, c.name)
                 .bind(5, static_cast<std::int64_t>(c.fit))
                 .run()) {
            return false;
        }
    }
    r.id = id;
    return true;
}

} // namespace

std::optional<std::string> SqliteStore::add(StoneRecord& record) {
    if (auto failed = beginChanges()) {
        return failed;
    }
    // A record goes in whole or not at all, whatever else the open transaction holds.
    sqlite3* database = database_.get();
    sqlite3_exec(database, "SAVEPOINT add_record", nullptr, nullptr, nullptr);
    if (!insert(database, record)) {
        auto message = failure("cannot add a record to");
        sqlite3_exec(database, "ROLLBACK TO add_record", nullptr, nullptr, nullptr);
        sqlite3_exec(database, "RELEASE add_record", nullptr, nullptr, nullptr);
        return message;
    }
    sqlite3_exec(database, "RELEASE add_record", nullptr, nullptr, nullptr);
    return std::nullopt;
}

std::optional<std::string> SqliteStore::change(const char* sql,
                                               const std::function<void(Statement&)>& bind,
                                               const std::string& what) {
    if (auto failed = beginChanges()) {
        return failed;
    }
    Statement statement(database_.get(), sql);
    bind(statement);
    if (!statement.run()) {
        return failure(what);
    }
    return std::nullopt;
}

std::optional<std::string> SqliteStore::update(const StoneRecord& record) {
    return change(
        "UPDATE stone_record SET notes = ?2, conclusion = ?3 WHERE id = ?1",
        [&](Statement& s) {
            s.bind(1, record.id).bind(2, record.notes).bind(3, record.conclusion);
        },
        "cannot change a record in");
}

// The readings and candidates go with it (ON DELETE CASCADE).
std::optional<std::string> SqliteStore::remove(RecordId id) {
    return change(
        "DELETE FROM stone_record WHERE id = ?1", [&](Statement& s) { s.bind(1, id); },
        "cannot remove a record from");
}

std::optional<std::string> SqliteStore::list(std::vector<StoneRecord>& records) const {
    records.clear();
    if (!database_) {
        return "the store " + file_.string() + " is not open";
    }
    if (!readRecords(database_.get(), "ORDER BY examined DESC, id DESC", std::nullopt, records)) {
        return failure("cannot read");
    }
    return std::nullopt;
}

std::optional<std::string> SqliteStore::find(RecordId id,
                                             std::optional<StoneRecord>& record) const {
    record.reset();
    if (!database_) {
        return "the store " + file_.string() + " is not open";
    }
    std::vector<StoneRecord> found;
    if (!readRecords(database_.get(), "WHERE id = ?1", id, found)) {
        return failure("cannot read");
    }
    if (!found.empty()) {
        record = std::move(found.front());
    }
    return std::nullopt;
}

} // namespace velmora
