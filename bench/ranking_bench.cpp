// Ranked identification over 10,000 stones, every input given: two R.I. readings, S.G.,
// hardness, colour and part of the name; and reading the stones' cells for it once. The stones are
// the shipped table repeated, each copy's R.I. and S.G. shifted a little, so ranges, families and
// names are those of real rows.

#include "data/reference_loader.h"
#include "foundation/bundle.h"
#include "search/deviation_text.h"
#include "search/range_cell.h"
#include "search/ranking.h"

#include <benchmark/benchmark.h>
#include <random>
#include <sstream>

namespace {

constexpr std::size_t stoneCount = 10000;

std::string shifted(const std::string& cell, double by) {
    const auto span = velmora::spanOf(cell);
    if (!span) {
        return cell;
    }
    return velmora::fixedText(span->low + by, 3, ".") + "-" +
           velmora::fixedText(span->high + by, 3, ".");
}

const velmora::StoneList& stones() {
    static const velmora::StoneList list = [] {
        velmora::StoneList arr_stones;
        velmora::StoneList arr_stonesGlobal;
        std::ostringstream ignored;
        velmora::loadReferenceSet(velmora::referenceFilePath(velmora::Bundle::main()), ignored,
                                  arr_stones, arr_stonesGlobal);
        std::mt19937 rng(12);
        std::uniform_real_distribution<double> shift(-0.01, 0.01);
        std::vector<velmora::Stones> result;
        result.reserve(stoneCount);
        for (std::size_t i = 0; i < stoneCount && !arr_stonesGlobal.empty(); ++i) {
            velmora::Stones s = arr_stonesGlobal[i % arr_stonesGlobal.size()];
            s.Ri = shifted(s.Ri, shift(rng));
            s.SgRange = shifted(s.SgRange, 5 * shift(rng));
            result.push_back(std::move(s));
        }
        return velmora::StoneList(std::move(result));
    }();
    return list;
}

// The table is read once, as the window reads it with the reference set.
void rank(benchmark::State& state, const velmora::RankingInputs& inputs) {
    const velmora::RankingTable table(stones());
    std::size_t candidates = 0;
    for (auto _ : state) {
        const auto ranking = velmora::rankStones(table, inputs);
        candidates = ranking.candidates.size();
        benchmark::DoNotOptimize(ranking.candidates.data());
    }
    state.counters["stones"] = static_cast<double>(table.rows().size());
    state.counters["candidates"] = static_cast<double>(candidates);
}

void BM_RankEveryInput(benchmark::State& state) {
    rank(state, {.ri = {{1.624, 0.0005}},
                 .riHigh = {{1.644, 0.0005}},
                 .sg = {{3.06, 0.005}},
                 .hardness = {{7, 0.5}},
                 .color = "green",
                 .name = "e"});
}
BENCHMARK(BM_RankEveryInput)->Unit(benchmark::kMillisecond);

// A name with an accent folds through ICU for every stone that is not plain ASCII.
void BM_RankOverTheLimitAccentedName(benchmark::State& state) {
    rank(state, {.overTheLimit = true, .sg = {{3.52, 0.005}}, .name = "\xC3\xA9"});
}
BENCHMARK(BM_RankOverTheLimitAccentedName)->Unit(benchmark::kMillisecond);

// No name: every stone is ranked and sorted.
void BM_RankReadingsOnly(benchmark::State& state) {
    rank(state, {.ri = {{1.543, 0.0005}}, .sg = {{2.65, 0.005}}});
}
BENCHMARK(BM_RankReadingsOnly)->Unit(benchmark::kMillisecond);

// Reading the 10,000 stones' cells for ranking, once per reference set.
void BM_ReadRankingTable(benchmark::State& state) {
    for (auto _ : state) {
        const velmora::RankingTable table(stones());
        benchmark::DoNotOptimize(table.rows().data());
    }
}
BENCHMARK(BM_ReadRankingTable)->Unit(benchmark::kMillisecond);

} // namespace
