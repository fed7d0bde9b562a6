// Cold start to the first frame, beside a peer: starts both programs in turn and prints the medians of time
// and memory. On a busy machine a program also waits for its turn on a core; the second line leaves these
// waits of the main thread out, the third is what the main thread computed.
//
//     startup_bench ROUNDS PROGRAM [ARGUMENT...] -- PEER [ARGUMENT...]
//
// The moment of the first frame comes from Qt's own render loop log, so neither program does anything for
// this.
#include "command.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

struct Start {
    double milliseconds = 0;
    double running = 0;   ///< ms, without the main thread's waits for a core
    double computing = 0; ///< ms of the main thread's processor time
    double megabytes = 0; ///< resident at the first frame
};

double residentMegabytes(pid_t process) {
    std::ifstream statm("/proc/" + std::to_string(process) + "/statm");
    long total = 0, resident = 0;
    statm >> total >> resident;
    return double(resident) * double(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// What the system counted for the main thread, ms: its processor time, and its waits for a core.
std::pair<double, double> mainThread(pid_t process) {
    std::ifstream counts("/proc/" + std::to_string(process) + "/schedstat");
    double computed = 0, waited = 0; // ns
    counts >> computed >> waited;
    return {computed / 1e6, waited / 1e6};
}

[[noreturn]] void become(const std::vector<std::string> &command, int log) {
    dup2(log, STDERR_FILENO);
    setenv("QT_LOGGING_RULES", "qt.scenegraph.time.renderloop=true", 1);
    setenv("QT_FORCE_STDERR_LOGGING", "1", 1);
    execute(command);
}

Start measure(const std::vector<std::string> &command) {
    int ends[2];
    if (pipe(ends) != 0) std::exit(1);
    const Clock::time_point begin = Clock::now();
    const pid_t process = fork();
    if (process == 0) become(command, ends[1]);
    close(ends[1]);

    std::string log;
    char piece[4096];
    for (ssize_t size; (size = read(ends[0], piece, sizeof piece)) > 0;) {
        log.append(piece, std::size_t(size));
        if (log.find("rendered") != std::string::npos) break;
    }
    const double passed = std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
    const auto [computed, waited] = mainThread(process);
    const Start start{passed, passed - waited, computed, residentMegabytes(process)};
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    close(ends[0]);
    if (log.find("rendered") == std::string::npos) {
        std::fprintf(stderr, "%s showed no frame:\n%s\n", command[0].c_str(), log.c_str());
        std::exit(1);
    }
    return start;
}

void compare(const char *what, std::vector<Start> ours, std::vector<Start> theirs, double Start::*field,
             const char *unit) {
    const auto median = [field](std::vector<Start> &starts) {
        std::ranges::sort(starts, {}, field);
        return starts[starts.size() / 2].*field;
    };
    const double our = median(ours), their = median(theirs);
    std::printf("%-22s %.1f %s, peer %.1f %s, ratio %.2f\n", what, our, unit, their, unit, our / their);
}

} // namespace

int main(int argc, char **argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const auto border = std::ranges::find(arguments, "--");
    if (arguments.size() < 4 || border == arguments.end() || border + 1 == arguments.end()) {
        std::fputs("usage: startup_bench ROUNDS PROGRAM [ARGUMENT...] -- PEER [ARGUMENT...]\n", stderr);
        return 2;
    }
    const int rounds = std::max(1, std::atoi(arguments[0].c_str()));
    const std::vector<std::string> program(arguments.begin() + 1, border), peer(border + 1, arguments.end());

    std::vector<Start> ours, theirs;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(measure(program));
        theirs.push_back(measure(peer));
    }
    compare("first frame:", ours, theirs, &Start::milliseconds, "ms");
    compare("without its waits:", ours, theirs, &Start::running, "ms");
    compare("main thread computed:", ours, theirs, &Start::computing, "ms");
    compare("resident:", ours, theirs, &Start::megabytes, "MB");
    return 0;
}
