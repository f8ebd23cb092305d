#include "app/app_delegate.h"
#include "app/cli/cli.h"
#include "app/cli/output.h"
#include "app/cli/ranking_entries.h"
#include "app/cli/report_writer.h"
#include "app/cli/store_path.h"
#include "app/sqlite/sqlite_store.h"
#include "data/reference_loader.h"
#include "foundation/bundle.h"
#include "records/recorded_series.h"
#include "records/records_csv.h"

#include <CLI/CLI.hpp>
#include <fstream>
#include <memory>
#include <ostream>

namespace velmora::cli {
namespace {

struct RecordsOptions {
    std::optional<std::string> store; // --store FILE
    RankOptions readings;
    std::string label;
    std::optional<std::string> note;
    std::optional<std::string> conclusion;
    RecordId id = 0;
    std::vector<RecordId> ids;
    std::string csv;
    std::string pdf;
};

// The store, open; nothing, with the reason on standard error, when it cannot be opened. A store
// kept aside and started anew is told, and used.
std::unique_ptr<SqliteStore> openStore(const Context& context, const RecordsOptions& options) {
    auto store = std::make_unique<SqliteStore>(
        options.store ? std::filesystem::path(*options.store) : applicationStorePath(),
        Bundle::main().pathForResource(AppDelegate::containerName, "sql"));
    const auto message = store->loadPersistentStores();
    if (message) {
        *context.err << "records: " << *message << '\n';
    }
    if (!store->records()) {
        return nullptr;
    }
    return store;
}

StoneRecord recordOf(const RecordsOptions& o, const RankingInputs& in, const Ranking& ranking) {
    StoneRecord record;
    record.label = o.label;
    record.examined = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    RotationSeries series;
    for (const auto& reading : {in.ri, in.riHigh}) {
        if (reading) {
            series.add(reading->value);
        }
    }
    record.ri = recordedSeries(series);
    record.sg = in.sg ? std::optional(in.sg->value) : std::nullopt;
    record.hardness = in.hardness ? std::optional(in.hardness->value) : std::nullopt;
    record.color = in.color.value_or("");
    record.notes = o.note.value_or("");
    record.conclusion = o.conclusion.value_or("");
    const auto kept = std::min<std::size_t>(ranking.candidates.size(), o.readings.limit);
    for (std::size_t i = 0; i < kept; ++i) {
        const Candidate& c = ranking.candidates[i];
        record.candidates.push_back({candidateNumber(c, i), candidateName(c), c.lead().fit});
    }
    return record;
}

int add(const Context& context, const RecordsOptions& options) {
    RankingInputs inputs;
    if (const auto refused = readEntries(context, options.readings, "records add", inputs)) {
        return *refused;
    }
    StoneList arr_stones;
    StoneList arr_stonesGlobal;
    if (!loadReferenceSet(context.referencePath(), *context.err, arr_stones, arr_stonesGlobal)) {
        return exitAlert;
    }
    StoneRecord record = recordOf(options, inputs, rankStones(arr_stonesGlobal, inputs));
    const auto store = openStore(context, options);
    if (!store) {
        return exitAlert;
    }
    auto failed = store->add(record);
    if (!failed) {
        failed = store->save();
    }
    if (failed) {
        *context.err << "records add: " << *failed << '\n';
        return exitAlert;
    }
    printRecord(*context.out, context.json, {{"id", std::to_string(record.id)}});
    return exitSuccess;
}

int list(const Context& context, const RecordsOptions& options) {
    const auto store = openStore(context, options);
    std::vector<StoneRecord> records;
    if (!store) {
        return exitAlert;
    }
    if (const auto failed = store->list(records)) {
        *context.err << "records list: " << *failed << '\n';
        return exitAlert;
    }
    for (const StoneRecord& r : records) {
        printRecord(*context.out, context.json,
                    {{"id", std::to_string(r.id)},
                     {"label", r.label},
                     {"date", isoTimeText(r.examined)},
                     {"conclusion", r.conclusion}});
    }
    return exitSuccess;
}

// Text: one field a line, NAME<TAB>VALUE, a candidate a line; JSON: one object.
void printDetail(const Context& context, const StoneRecord& r) {
    Fields fields = {{"id", std::to_string(r.id)},
                     {"label", r.label},
                     {"date", isoTimeText(r.examined)},
                     {"ri_readings", cNumbersText(r.ri.values, " ")},
                     {"ri_low", cNumberText(r.ri.low)},
                     {"ri_high", cNumberText(r.ri.high)},
                     {"birefringence", cNumberText(r.ri.birefringence)},
                     {"verdict", r.ri.verdict},
                     {"sg", cNumberText(r.sg)},
                     {"hardness", cNumberText(r.hardness)},
                     {"color", r.color}};
    const Fields closing = {{"conclusion", r.conclusion}, {"notes", r.notes}};
    if (context.json) {
        for (const auto& c : r.candidates) {
            fields.emplace_back("candidate",
                                c.number + '\t' + c.name + '\t' + std::to_string(c.fit) + '%');
        }
        fields.insert(fields.end(), closing.begin(), closing.end());
        printRecord(*context.out, true, fields);
        return;
    }
    // Each value is escaped as it is printed, so a candidate's own columns are fields of its line.
    for (const auto& field : fields) {
        printRecord(*context.out, false, {{"name", field.first}, field});
    }
    for (const auto& c : r.candidates) {
        printRecord(*context.out, false,
                    {{"name", "candidate"},
                     {"number", c.number},
                     {"stone", c.name},
                     {"fit", std::to_string(c.fit) + '%'}});
    }
    for (const auto& field : closing) {
        printRecord(*context.out, false, {{"name", field.first}, field});
    }
}

int show(const Context& context, const RecordsOptions& options) {
    const auto store = openStore(context, options);
    if (!store) {
        return exitAlert;
    }
    std::optional<StoneRecord> record;
    if (const auto failed = store->find(options.id, record)) {
        *context.err << "records show: " << *failed << '\n';
        return exitAlert;
    }
    if (!record) {
        *context.err << "records show: no record " << options.id << '\n';
        return exitAlert;
    }
    printDetail(context, *record);
    return exitSuccess;
}

int exportCsv(const Context& context, const RecordsOptions& options) {
    const auto store = openStore(context, options);
    if (!store) {
        return exitAlert;
    }
    std::vector<StoneRecord> records;
    if (const auto failed = store->list(records)) {
        *context.err << "records export: " << *failed << '\n';
        return exitAlert;
    }
    std::ofstream out(options.csv, std::ios::binary);
    writeRecordsCsv(out, records);
    out.close();
    if (!out) {
        *context.err << "records export: cannot write " << options.csv << '\n';
        return exitAlert;
    }
    return exitSuccess;
}

// Every id must name a record: a report missing one the user asked for is no report.
int report(const Context& context, const RecordsOptions& options) {
    const auto store = openStore(context, options);
    if (!store) {
        return exitAlert;
    }
    std::vector<StoneRecord> records;
    for (const RecordId id : options.ids) {
        std::optional<StoneRecord> record;
        if (const auto failed = store->find(id, record)) {
            *context.err << "records report: " << *failed << '\n';
            return exitAlert;
        }
        if (!record) {
            *context.err << "records report: no record " << id << '\n';
            return exitAlert;
        }
        records.push_back(std::move(*record));
    }
    if (const auto failed =
            writeReportPdf(records, options.pdf, context.locale().decimalSeparator())) {
        *context.err << "records report: " << *failed << '\n';
        return exitAlert;
    }
    return exitSuccess;
}

void addAddCommand(CLI::App& records, Context& context, const std::shared_ptr<RecordsOptions>& o) {
    auto* add = records.add_subcommand(
        "add", "Rank the readings and keep them, with the candidates as they stand, as a new "
               "record; prints its id");
    add->add_option("--label", o->label, "The client's or lot number")
        ->type_name("TEXT")
        ->required();
    auto* ri =
        add->add_option("--ri", o->readings.ri, "R.I. reading; the low one of two")->type_name("X");
    add->add_option("--ri-high", o->readings.riHigh, "The high R.I. reading")
        ->type_name("Y")
        ->needs(ri);
    add->add_option("--sg", o->readings.sg, "Specific gravity")->type_name("X");
    add->add_option("--hardness", o->readings.hardness, "Mohs hardness")->type_name("X");
    add->add_option("--color", o->readings.color, "A colour of the catalogue, any case")
        ->type_name("NAME")
        ->transform(CLI::IsMember(colorNames(), CLI::ignore_case));
    add->add_option("--note", o->note, "Free notes")->type_name("TEXT");
    add->add_option("--conclusion", o->conclusion, "What the stone is, in your words")
        ->type_name("TEXT");
    add->callback([&context, o] { context.exitCode = velmora::cli::add(context, *o); });
}

} // namespace

void addRecordsCommand(CLI::App& app, Context& context) {
    auto o = std::make_shared<RecordsOptions>();
    auto* records = app.add_subcommand("records", "The records of examined stones");
    records->require_subcommand(1);
    records->fallthrough();
    records
        ->add_option("--store", o->store,
                     "Use this store instead of the application's own (" +
                         applicationStorePath().string() + ")")
        ->type_name("FILE");
    addAddCommand(*records, context, o);
    records
        ->add_subcommand("list",
                         "Every record, newest first: id<TAB>label<TAB>date<TAB>conclusion a line")
        ->callback([&context, o] { context.exitCode = list(context, *o); });
    auto* showCommand = records->add_subcommand("show", "One record in full, a field a line");
    showCommand->add_option("ID", o->id, "The record's id")->required();
    showCommand->callback([&context, o] { context.exitCode = show(context, *o); });
    auto* exportCommand = records->add_subcommand("export", "Write every record to a file");
    exportCommand->add_option("--csv", o->csv, "A CSV table (RFC 4180, UTF-8)")
        ->type_name("FILE")
        ->required();
    exportCommand->callback([&context, o] { context.exitCode = exportCsv(context, *o); });
    auto* reportCommand = records->add_subcommand(
        "report", "Write a PDF report, a page a record, as a lab hands it over");
    reportCommand->add_option("ID", o->ids, "The records' ids")->required();
    reportCommand->add_option("--pdf", o->pdf, "The PDF file")->type_name("FILE")->required();
    reportCommand->callback([&context, o] { context.exitCode = report(context, *o); });
}

} // namespace velmora::cli
