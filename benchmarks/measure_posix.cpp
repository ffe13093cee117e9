// Runs a program and tells what it took:
// measure <megabytes at hand> <standard output> <program> <argument>...
//
// Prints "<status> <wall> <user> <system> <peak>": microseconds, and KiB. Small on purpose: the
// peak memory of a process counts that of the one that started it, up to the start.
#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

/// Has the system get that much memory and takes nothing of it. A virtual machine may give free
/// memory back to its host; to get it anew takes up to twenty times as long as to clear it, and
/// would be counted as the program's time. A process of its own does it, so that it counts in no
/// peak.
void haveMemoryAtHand(std::size_t size) {
    const pid_t child = fork();
    if (child == 0) {
        void* const memory =
            mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) _exit(1);
        madvise(memory, size, MADV_HUGEPAGE);
        std::memset(memory, 1, size);
        _exit(0);
    }
    if (child > 0) waitpid(child, nullptr, 0);
}

long long microseconds(const timeval& time) { return time.tv_sec * 1'000'000LL + time.tv_usec; }

int statusOf(int waitStatus) {
    return WIFEXITED(waitStatus) ? WEXITSTATUS(waitStatus) : -WTERMSIG(waitStatus);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount < 4) return 2;
    haveMemoryAtHand(std::strtoull(arguments[1], nullptr, 10) << 20U);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, arguments[2], O_WRONLY | O_CREAT | O_TRUNC, 0644);

    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    if (posix_spawnp(&child, arguments[3], &actions, nullptr, arguments + 3, environ) != 0)
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
