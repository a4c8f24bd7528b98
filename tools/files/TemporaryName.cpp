#include "tools/files/TemporaryName.h"

#include <array>
#include <atomic>
#include <csignal>
#include <utility>

#include <unistd.h>

#include "tools/files/BlockedSignals.h"

namespace {

/// What to remove when a signal comes. A handler may use nothing but lock-free atomics and system
/// calls; more names than there is room for are left behind then.
std::array<std::atomic<const TemporaryName*>, 8> names;
static_assert(std::atomic<const TemporaryName*>::is_always_lock_free);

void removeNames() {
    // From the last to the first: what is in a folder comes after it.
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        const TemporaryName* const present = name->load();
        if (present != nullptr)
            present->remove();
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
        for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGXCPU, SIGXFSZ})
            handle(signal);
        return true;
    }();
    static_cast<void>(done);
}

void replace(const TemporaryName* present, const TemporaryName* next) {
    for (std::atomic<const TemporaryName*>& name : names) {
        const TemporaryName* expected = present;
        if (name.compare_exchange_strong(expected, next))
            return;
    }
}

} // namespace

TemporaryName::TemporaryName(std::string name, int folder)
    : name_(std::move(name)), folder_(folder) {
    handleSignalsOnce();
}

TemporaryName::~TemporaryName() {
    if (!owned_)
        return;
    remove();
    release();
}

bool TemporaryName::make(const std::function<bool(std::string& name)>& create) {
    const BlockedSignals blocked;
    owned_ = create(name_);
    if (owned_)
        replace(nullptr, this);
    return owned_;
}

void TemporaryName::release() {
    replace(this, nullptr);
    owned_ = false;
}

void TemporaryName::remove() const {
    if (unlinkat(folder_, name_.c_str(), 0) != 0)
        unlinkat(folder_, name_.c_str(), AT_REMOVEDIR);
}
