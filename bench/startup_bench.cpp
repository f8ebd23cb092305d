// Times whole programs as a user feels them: from the moment the process is started to the
// moment it has exited, and the most memory it held on the way (the kernel's peak resident set,
// from wait4). The processor time it took is shown too: on a busy machine it varies less. Runs the
// programs in turn, one run of each per round, so that whatever else the machine does weighs on all
// of them alike, and prints the medians and the ratios to the first.
//
//   startup_bench RUNS PROGRAM [ARGS...] -- PROGRAM [ARGS...] ...

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct Sample {
    double milliseconds = 0;
    double mebibytes = 0;
    double cpuMilliseconds = 0;
};

bool runOnce(const std::vector<std::string>& command, Sample& sample) {
    std::vector<char*> argv;
    argv.reserve(command.size() + 1);
    for (const auto& word : command) {
        argv.push_back(const_cast<char*>(word.c_str()));
    }
    argv.push_back(nullptr);
    const auto started = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child < 0) {
        std::perror("fork");
        return false;
    }
    if (child == 0) {
        // The programs' own reports would only clutter the table.
        if (std::freopen("/dev/null", "w", stdout) == nullptr) {
            _exit(127);
        }
        execvp(argv[0], argv.data());
        std::perror(argv[0]);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (wait4(child, &status, 0, &usage) != child) {
        std::perror("wait4");
        return false;
    }
    const std::chrono::duration<double, std::milli> elapsed =
        std::chrono::steady_clock::now() - started;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s failed (status %d)\n", argv[0], status);
        return false;
    }
    sample.milliseconds = elapsed.count();
    sample.mebibytes = static_cast<double>(usage.ru_maxrss) / 1024.0; // ru_maxrss is in KiB
    const auto ms = [](const timeval& t) {
        return t.tv_sec * 1e3 + t.tv_usec / 1e3;
    };
    sample.cpuMilliseconds = ms(usage.ru_utime) + ms(usage.ru_stime);
    return true;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s RUNS PROGRAM [ARGS...] [-- PROGRAM [ARGS...]]...\n",
                     argv[0]);
        return 2;
    }
    const int runs = std::atoi(argv[1]);
    std::vector<std::vector<std::string>> commands(1);
    for (int i = 2; i < argc; ++i) {
        if (std::string(argv[i]) == "--") {
            commands.emplace_back();
        } else {
            commands.back().emplace_back(argv[i]);
        }
    }
    if (runs < 1 || std::any_of(commands.begin(), commands.end(),
                                [](const auto& command) { return command.empty(); })) {
        std::fprintf(stderr, "%s: give a number of runs and non-empty commands\n", argv[0]);
        return 2;
    }

    std::vector<std::vector<Sample>> samples(commands.size());
    for (int round = 0; round < runs; ++round) {
        for (std::size_t i = 0; i < commands.size(); ++i) {
            Sample sample;
            if (!runOnce(commands[i], sample)) {
                return 1;
            }
            samples[i].push_back(sample);
        }
    }

    double baseTime = 0;
    double baseMemory = 0;
    std::printf("%-16s %10s %10s %10s %8s %8s\n", "median of runs", "wall ms", "peak MiB", "cpu ms",
                "time", "memory");
    for (std::size_t i = 0; i < commands.size(); ++i) {
        std::vector<double> times;
        std::vector<double> memories;
        std::vector<double> cpuTimes;
        for (const Sample& sample : samples[i]) {
            times.push_back(sample.milliseconds);
            memories.push_back(sample.mebibytes);
            cpuTimes.push_back(sample.cpuMilliseconds);
        }
        const double time = median(times);
        const double memory = median(memories);
        if (i == 0) {
            baseTime = time;
            baseMemory = memory;
        }
        const std::string name = commands[i][0].substr(commands[i][0].find_last_of('/') + 1);
        std::printf("%-16s %10.1f %10.1f %10.1f %7.2fx %7.2fx\n", name.c_str(), time, memory,
                    median(cpuTimes), time / baseTime, memory / baseMemory);
    }
    return 0;
}
