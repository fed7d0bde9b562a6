#pragma once

#include <cstdio>
#include <string>
#include <unistd.h>
#include <vector>

/// Becomes the program that the command names, by its path; ends with 127 where there is none.
[[noreturn]] inline void execute(const std::vector<std::string> &command) {
    std::vector<char *> arguments;
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    std::perror(arguments[0]);
    _exit(127);
}
