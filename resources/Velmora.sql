-- The data model of the persistent container "Velmora" (Velmora.sqlite in the user's data
-- folder). The application stores no record yet; the metadata table marks the file as its own
-- and carries the model's version for the versions that will. Every statement may run again on
-- a file that already has it.
CREATE TABLE IF NOT EXISTS metadata (
    key   TEXT PRIMARY KEY NOT NULL,
    value TEXT NOT NULL
);
INSERT OR IGNORE INTO metadata (key, value) VALUES ('model', 'Velmora');
INSERT OR IGNORE INTO metadata (key, value) VALUES ('version', '1');
