#include "tools/findings/NewFindings.h"

#include "tools/findings/Fingerprint.h"

void NewFindings::add(const Finding& finding) {
    if (baseline_.take(fingerprintOf(finding, path_)))
        ++known_;
    else
        sink_.offer(finding);
}
