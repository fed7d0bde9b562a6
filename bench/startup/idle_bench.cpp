// What programs that nobody touches take of one core: starts all of them, lets them come to rest, and counts
// the processor time of all their threads.
//
//     idle_bench REST SECONDS PROGRAM [ARGUMENT...] [-- PROGRAM [ARGUMENT...]]...
#include "command.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

struct Program {
    std::vector<std::string> command;
    pid_t process = 0;
    double before = 0; ///< seconds of processor time at the beginning of the measurement
};

/// Seconds of processor time of all threads; less than none where the program has ended.
double spent(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string line;
    std::getline(file, line);
    const auto name = line.rfind(')');
    if (name == std::string::npos) return -1;
    std::istringstream fields(line.substr(name + 2));
    std::string skipped;
    for (int field = 3; field < 14; ++field)
        fields >> skipped;
    if (skipped.empty()) return -1;
    double user = 0, system = 0;
    fields >> user >> system;
    return (user + system) / double(sysconf(_SC_CLK_TCK));
}

pid_t start(const std::vector<std::string> &command) {
    const pid_t process = fork();
    if (process != 0) return process;
    execute(command);
}

} // namespace

int main(int argc, char **argv) {
    std::vector<Program> programs(1);
    for (int i = 3; i < argc; ++i) {
        if (std::string(argv[i]) == "--")
            programs.emplace_back();
        else
            programs.back().command.emplace_back(argv[i]);
    }
    for (const Program &program : programs) {
        if (!program.command.empty()) continue;
        std::fputs("usage: idle_bench REST SECONDS PROGRAM [ARGUMENT...] [-- PROGRAM [ARGUMENT...]]...\n",
                   stderr);
        return 2;
    }
    for (Program &program : programs)
        program.process = start(program.command);
    std::this_thread::sleep_for(std::chrono::seconds(std::atoi(argv[1])));
    for (Program &program : programs)
        program.before = spent(program.process);
    const Clock::time_point begin = Clock::now();
    std::this_thread::sleep_for(std::chrono::seconds(std::atoi(argv[2])));
    const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();

    int failures = 0;
    for (const Program &program : programs) {
        int status = 0;
        const bool ended = waitpid(program.process, &status, WNOHANG) != 0;
        const double share = 100 * (spent(program.process) - program.before) / seconds;
        if (!ended) {
            kill(program.process, SIGTERM);
            waitpid(program.process, &status, 0);
        }
        failures += ended ? 1 : 0;
        for (const std::string &argument : program.command)
            std::printf("%s ", argument.c_str());
        ended ? std::printf(": has ended by itself\n") : std::printf(": %.2f %% of one core\n", share);
    }
    return failures == 0 ? 0 : 1;
}
