// Runs a program and tells what it took: measure <standard output> <program> <argument>...
//
// Prints "<status> <wall> <user> <system> <peak>": microseconds, and KiB. Small on purpose: the
// peak memory of a process counts that of the one that started it, up to the start.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace {

long long microseconds(const timeval& time) { return time.tv_sec * 1'000'000LL + time.tv_usec; }

int statusOf(int waitStatus) {
    return WIFEXITED(waitStatus) ? WEXITSTATUS(waitStatus) : -WTERMSIG(waitStatus);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount < 3) return 2;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, arguments[1], O_WRONLY | O_CREAT | O_TRUNC, 0644);

    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    if (posix_spawnp(&child, arguments[2], &actions, nullptr, arguments + 2, environ) != 0)
        return 1;
    int waitStatus = 0;
    rusage used = {};
    if (wait4(child, &waitStatus, 0, &used) != child) return 1;
    const std::chrono::microseconds wall = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - begin);

    std::printf("%d %lld %lld %lld %ld\n", statusOf(waitStatus),
                static_cast<long long>(wall.count()), microseconds(used.ru_utime),
                microseconds(used.ru_stime), used.ru_maxrss);
    return 0;
}
