/// @file
/// Tests of what users may not do, which a superuser may.

#ifndef QENXML_TESTS_SUPPORT_ORDINARYUSER_H
#define QENXML_TESTS_SUPPORT_ORDINARYUSER_H

#include <filesystem>
#include <functional>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace test {

/// Whether this process may do everything, and what it does has to be done by an ordinary user to
/// be refused.
inline bool isSuperuser() {
    return geteuid() == 0;
}

/// Asks something of a process of its own that has no more rights than an ordinary user.
///
/// @param folder its current folder; the folders above it may be closed to it
inline bool asOrdinaryUser(const std::string& folder, const std::function<bool()>& question) {
    constexpr uid_t nobody = 65534;
    const pid_t child = fork();
    if (child == 0) {
        bool answer = chdir(folder.c_str()) == 0;
        if (isSuperuser())
            answer = answer && setgid(nobody) == 0 && setuid(nobody) == 0;
        _exit(answer && question() ? 0 : 1);
    }
    int status = -1;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Gives everybody all rights to a folder, whatever the umask.
inline void openToEverybody(const std::string& folder) {
    std::filesystem::permissions(folder, std::filesystem::perms::all);
}

} // namespace test

#endif
