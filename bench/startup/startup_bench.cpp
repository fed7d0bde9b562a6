// Cold start to the first frame, beside a peer: starts both programs in turn and prints the medians of time
// and memory.
//
//     startup_bench ROUNDS PROGRAM [ARGUMENT...] -- PEER [ARGUMENT...]
//
// The moment of the first frame comes from Qt's own render loop log, so neither program does anything for
// this.
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
    double megabytes = 0; ///< resident at the first frame
};

double residentMegabytes(pid_t process) {
    std::ifstream statm("/proc/" + std::to_string(process) + "/statm");
    long total = 0, resident = 0;
    statm >> total >> resident;
    return double(resident) * double(sysconf(_SC_PAGESIZE)) / 1e6;
}

[[noreturn]] void become(const std::vector<std::string> &command, int log) {
    dup2(log, STDERR_FILENO);
    setenv("QT_LOGGING_RULES", "qt.scenegraph.time.renderloop=true", 1);
    setenv("QT_FORCE_STDERR_LOGGING", "1", 1);
    std::vector<char *> arguments;
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    std::perror(arguments[0]);
    _exit(127);
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
    const Start start{std::chrono::duration<double, std::milli>(Clock::now() - begin).count(),
                      residentMegabytes(process)};
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    close(ends[0]);
    if (log.find("rendered") == std::string::npos) {
        std::fprintf(stderr, "%s showed no frame:\n%s\n", command[0].c_str(), log.c_str());
        std::exit(1);
    }
    return start;
}

template<class Field>
double median(std::vector<Start> starts, Field field) {
    std::ranges::sort(starts, {}, field);
    return starts[starts.size() / 2].*field;
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
    const double time = median(ours, &Start::milliseconds), peerTime = median(theirs, &Start::milliseconds);
    const double memory = median(ours, &Start::megabytes), peerMemory = median(theirs, &Start::megabytes);
    std::printf("first frame: %.0f ms, peer %.0f ms, ratio %.2f\n", time, peerTime, time / peerTime);
    std::printf("resident:    %.1f MB, peer %.1f MB, ratio %.2f\n", memory, peerMemory, memory / peerMemory);
    return 0;
}
