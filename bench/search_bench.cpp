// Identification over a large reference set: 100,000 generated stones, all five criteria
// switched on. Measured twice: the search proper, and the Search button of the window as a whole
// (entries read, search, results refreshed, first stone shown).

#include "app/cli/headless_window.h"
#include "data/color_catalogue.h"
#include "data/reference_file.h"
#include "search/property_search.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

namespace {

constexpr int stoneCount = 100000;

const std::string& generatedText() {
    static const std::string text = [] {
        std::ostringstream out;
        out << "StoneID,StoneName,SgAverage,SgMin,SgMax,SgRange,Ri,RiMin,RiMax,Hardness,HMin,Hmax,"
               "StonenameUSB,SgAverageUSB,Birefringence,StoneFamily,NEW,BirefMin,BirefMax,"
               "Description1,Description2,Description3,Color1,Color2,Color3,Color4,Color5,Color6\n";
        std::mt19937 rng(7);
        const auto uniform = [&rng](double low, double high) {
            return std::uniform_real_distribution<double>(low, high)(rng);
        };
        const auto& colours = velmora::colorCatalogue();
        out.setf(std::ios::fixed);
        for (int i = 0; i < stoneCount; ++i) {
            const double ri = uniform(1.40, 2.40);
            const double sg = uniform(2.0, 5.0);
            const double hardness = uniform(5.0, 9.0);
            out.precision(3);
            out << i << ",Stone " << static_cast<char>('A' + rng() % 26)
                << static_cast<char>('a' + rng() % 26) << ' ' << i << ",,,," << sg << " - "
                << sg + uniform(0.1, 0.5) << ',' << ri << " - " << ri + uniform(0.005, 0.05)
                << ",,," << hardness << '-' << hardness + uniform(0.5, 2.0)
                << ",,,,,0.009,Family,1,,,Origins^ several,Optics,Imitations,";
            for (int c = 0; c < 6; ++c) {
                out << (c < 3 ? colours[rng() % colours.size()].name : "") << (c < 5 ? "," : "\n");
            }
        }
        return out.str();
    }();
    return text;
}

void BM_FindStonesAllFiveCriteria(benchmark::State& state) {
    const velmora::StoneList table(velmora::parseReferenceText(generatedText()));
    const velmora::SearchCriteria criteria{
        .ri = 1.55, .sg = 2.65, .hardness = 7.0, .color = "Green", .name = "stone"};
    std::size_t found = 0;
    for (auto _ : state) {
        const auto result = velmora::findStones(table, criteria);
        found = result.size();
        benchmark::DoNotOptimize(result.begin());
    }
    state.counters["stones"] = static_cast<double>(table.size());
    state.counters["found"] = static_cast<double>(found);
}
BENCHMARK(BM_FindStonesAllFiveCriteria)->Unit(benchmark::kMillisecond);

// The dictionary tab of a headless window over the generated set, the five criteria entered.
struct Window {
    std::ostringstream out;
    std::ostringstream err;
    std::filesystem::path file;
    velmora::cli::Context context;
    std::unique_ptr<velmora::cli::HeadlessWindow> headless;

    explicit Window(bool criteria) {
        file = std::filesystem::temp_directory_path() / "velmora-bench-search.csv";
        std::ofstream(file, std::ios::binary) << generatedText();
        context.reference = file.string();
        context.decimalSeparator.emplace(1, '.');
        context.out = &out;
        context.err = &err;
        headless = std::make_unique<velmora::cli::HeadlessWindow>(context);
        velmora::MainWindow& w = headless->window;
        headless->perform([&] { w.bvtn_dictionary.performClick(); });
        if (!criteria) {
            return;
        }
        const std::pair<velmora::Button*, velmora::TextField*> entries[] = {
            {&w.check_RI, &w.txt_leftRIReading},
            {&w.check_sg, &w.txt_leftSG},
            {&w.check_hardness, &w.txt_leftHardness},
            {&w.check_Name, &w.txt_left_name}};
        const char* values[] = {"1.55", "2.65", "7", "stone"};
        for (std::size_t i = 0; i < 4; ++i) {
            headless->perform([&] { entries[i].first->performClick(); });
            entries[i].second->setText(values[i]);
        }
        headless->perform([&] { w.check_color.performClick(); });
    }
    ~Window() { std::filesystem::remove(file); }
};

void searchButton(benchmark::State& state, bool criteria) {
    Window window(criteria);
    velmora::MainWindow& w = window.headless->window;
    for (auto _ : state) {
        window.headless->perform([&] { w.btn_search.performClick(); });
    }
    state.counters["listed"] = static_cast<double>(w.tableView.numberOfRows());
}

void BM_SearchButtonAllFiveCriteria(benchmark::State& state) {
    searchButton(state, true);
}
BENCHMARK(BM_SearchButtonAllFiveCriteria)->Unit(benchmark::kMillisecond);

// The heaviest refresh: no criterion, so all 100,000 stones are listed.
void BM_SearchButtonNoCriterion(benchmark::State& state) {
    searchButton(state, false);
}
BENCHMARK(BM_SearchButtonNoCriterion)->Unit(benchmark::kMillisecond);

} // namespace
