#include "tools/TemporaryName.h"

#include <array>
#include <atomic>
#include <csignal>
#include <utility>

#include <unistd.h>

namespace {

/// What to remove when a signal comes. A handler may use nothing but lock-free atomics and system
/// calls; more names than there is room for are left behind then.
std::array<std::atomic<const char*>, 8> names;
static_assert(std::atomic<const char*>::is_always_lock_free);

void removeNames() {
    // From the last to the first: what is in a folder comes after it.
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        const char* path = name->load();
        if (path != nullptr && unlink(path) != 0)
            rmdir(path);
    }
}

extern "C" void removeAndEnd(int signal) {
    removeNames();
    raise(signal); // Handled by default now, so that the parent sees how the process ended.
}

void handle(int signal) {
    struct sigaction present = {};
    sigaction(signal, nullptr, &present);
    if (present.sa_handler == SIG_IGN) // as nohup wants it
        return;
    struct sigaction action = {};
    action.sa_handler = removeAndEnd;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(signal, &action, nullptr);
}

void handleSignalsOnce() {
    static const bool done = [] {
        for (const int signal : {SIGHUP, SIGINT, SIGTERM})
            handle(signal);
        return true;
    }();
    static_cast<void>(done);
}

void replace(const char* present, const char* next) {
    for (std::atomic<const char*>& name : names) {
        const char* expected = present;
        if (name.compare_exchange_strong(expected, next))
            return;
    }
}

} // namespace

TemporaryName::TemporaryName(std::string path) : path_(std::move(path)) {
    handleSignalsOnce();
    replace(nullptr, path_.c_str());
}

TemporaryName::~TemporaryName() {
    if (!owned_)
        return;
    if (unlink(path_.c_str()) != 0)
        rmdir(path_.c_str());
    release();
}

void TemporaryName::release() {
    replace(path_.c_str(), nullptr);
    owned_ = false;
}
