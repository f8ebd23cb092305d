-- The data model of the persistent container "Velmora" (Velmora.sqlite in the user's data
-- folder), as the steps that bring a store from one version to the next. A "-- version N" line
-- starts the statements that make version N of version N - 1; the store keeps its version in
-- PRAGMA user_version and runs the steps it lacks in one transaction. A released step never
-- changes: a new model is a new step.

-- version 1
-- The metadata table marks the file as the application's own. Stores of this version predate
-- the user_version mark (they read 0), so the step must run again harmlessly on them.
CREATE TABLE IF NOT EXISTS metadata (
    key   TEXT PRIMARY KEY NOT NULL,
    value TEXT NOT NULL
);
INSERT OR IGNORE INTO metadata (key, value) VALUES ('model', 'Velmora');
INSERT OR IGNORE INTO metadata (key, value) VALUES ('version', '1');

-- version 2
-- The stone records. Times are UTC in ISO 8601 ("2026-11-23T12:05:09Z"), so they sort as text.
-- AUTOINCREMENT: the id of a deleted record is never given again, so a printed id stays its own.
DELETE FROM metadata WHERE key = 'version';
CREATE TABLE stone_record (
    id            INTEGER PRIMARY KEY AUTOINCREMENT,
    label         TEXT NOT NULL,
    examined      TEXT NOT NULL,
    ri_low        REAL,
    ri_high       REAL,
    birefringence REAL,
    verdict       TEXT NOT NULL DEFAULT '',
    sg            REAL,
    weight_air    REAL,
    weight_water  REAL,
    hardness      REAL,
    color         TEXT NOT NULL DEFAULT '',
    notes         TEXT NOT NULL DEFAULT '',
    conclusion    TEXT NOT NULL DEFAULT ''
);
CREATE INDEX stone_record_by_time ON stone_record (examined, id);
CREATE TABLE ri_reading (
    record_id INTEGER NOT NULL REFERENCES stone_record (id) ON DELETE CASCADE,
    position  INTEGER NOT NULL,
    value     REAL NOT NULL,
    PRIMARY KEY (record_id, position)
) WITHOUT ROWID;
-- The ranked candidates as they stood when the record was made, best first.
CREATE TABLE candidate (
    record_id INTEGER NOT NULL REFERENCES stone_record (id) ON DELETE CASCADE,
    position  INTEGER NOT NULL,
    number    TEXT NOT NULL,
    name      TEXT NOT NULL,
    fit       INTEGER NOT NULL,
    PRIMARY KEY (record_id, position)
) WITHOUT ROWID;
