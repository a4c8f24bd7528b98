#ifndef QENXML_TOOLS_FILES_BLOCKEDSIGNALS_H
#define QENXML_TOOLS_FILES_BLOCKEDSIGNALS_H

#include <csignal>

/// While it exists, signals wait, so that none ends the process between two steps.
class BlockedSignals {
public:
    BlockedSignals() {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before_);
    }
    BlockedSignals(const BlockedSignals&) = delete;
    BlockedSignals& operator=(const BlockedSignals&) = delete;
    ~BlockedSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

private:
    sigset_t before_ = {};
};

#endif
