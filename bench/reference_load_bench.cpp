// Loading a large reference file: 100,000 generated rows, about 30 MB, read from disk, decoded,
// cut into lines and cells, filtered and sorted. "peak_per_byte" is the process's peak resident
// memory over the file's size, to be kept under 2: the table keeps its text, and its records lie
// beside it. Run each benchmark alone (--benchmark_filter=.../0) for a figure of that load only.

#include "data/reference_loader.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <sys/resource.h>

namespace {

// The table as a spreadsheet saves it, in UTF-8 or, with an accent in every hundredth row, in
// Windows-1252.
std::filesystem::path generate(bool windows1252) {
    {
        auto p = std::filesystem::temp_directory_path() /
                 (windows1252 ? "velmora-bench-reference-1252.csv" : "velmora-bench-reference.csv");
        std::ofstream out(p, std::ios::binary);
        out << "StoneID,StoneName,SgAverage,SgMin,SgMax,SgRange,Ri,RiMin,RiMax,Hardness,HMin,Hmax,"
               "StonenameUSB,SgAverageUSB,Birefringence,StoneFamily,NEW,BirefMin,BirefMax,"
               "Description1,Description2,Description3,Color1,Color2,Color3,Color4,Color5,Color6\n";
        std::mt19937 rng(42);
        const char* families[] = {"Quartz", "Beryl",    "Corundum",
                                  "Garnet", "Feldspar", "Tourmaline"};
        for (int i = 0; i < 100000; ++i) {
            const double ri = 1.4 + (rng() % 1000) / 1000.0;
            const double sg = 2.0 + (rng() % 3000) / 1000.0;
            char name[32];
            std::snprintf(name, sizeof name, "Stone %c%c%c %d", static_cast<int>('A' + rng() % 26),
                          static_cast<int>('a' + rng() % 26), static_cast<int>('a' + rng() % 26),
                          i);
            char line[512];
            std::snprintf(
                line, sizeof line,
                "%d,%s,%.2f,%.2f,%.2f,%.2f-%.2f,%.3f-%.3f,%.3f,%.3f,7-7.5,7,7.5,%s,%.2f,0.009,%s,%"
                "d,"
                "0.008,0.010,Brazil^ Madagascar^ Sri Lanka and Myanmar,Uniaxial positive; weak "
                "pleochroism; two-phase inclusions and growth zoning,Synthetic hydrothermal "
                "material and glass imitations,Green,Red,,Blue,,%s\n",
                i, name, sg + 0.02, sg, sg + 0.04, sg, sg + 0.04, ri, ri + 0.009, ri, ri + 0.009,
                name, sg + 0.02, families[i % 6], i % 20 == 0 ? 0 : 1,
                windows1252 && i % 100 == 0 ? "Ros\xE9" : "");
            out << line;
        }
        return p;
    }
}

std::filesystem::path generatedFile(bool windows1252) {
    if (windows1252) {
        static const auto path = generate(true);
        return path;
    }
    static const auto path = generate(false);
    return path;
}

void BM_LoadReferenceFile(benchmark::State& state) {
    const auto path = generatedFile(state.range(0) != 0);
    const auto bytes = std::filesystem::file_size(path);
    std::ostringstream sink;
    for (auto _ : state) {
        velmora::StoneList arr_stones;
        velmora::StoneList arr_stonesGlobal;
        velmora::loadReferenceSet(path, sink, arr_stones, arr_stonesGlobal);
        benchmark::DoNotOptimize(arr_stonesGlobal.begin());
        // Freeing the table is the application's exit, not its load.
        state.PauseTiming();
        arr_stones = {};
        arr_stonesGlobal = {};
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
    state.counters["MB"] = static_cast<double>(bytes) / 1e6;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    state.counters["peak_per_byte"] = static_cast<double>(usage.ru_maxrss) * 1024 / bytes;
}
// 0: UTF-8, 1: Windows-1252.
BENCHMARK(BM_LoadReferenceFile)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace
