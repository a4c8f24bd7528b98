#include "tools/together/TogetherCheck.h"

#include <optional>

#include "tools/input/InputCheck.h"
#include "tools/input/PackageOptions.h"
#include "tools/together/MeetingFinding.h"
#include "tools/together/RecordPlaces.h"

namespace {

/// Hands on errors only.
class Errors : public FindingSink {
public:
    explicit Errors(FindingSink& sink) : sink_(sink) {}

    bool wants(FindingCode code) const override { return isError(code) && sink_.wants(code); }
    void add(const Finding& finding) override { sink_.add(finding); }
    void addCode(FindingCode code) override {
        if (isError(code))
            sink_.addCode(code);
    }

private:
    static bool isError(FindingCode code) { return kindOf(code).severity == Severity::Error; }

    FindingSink& sink_;
};

} // namespace

void TogetherCheck::add(const PackageInput& input) {
    const std::size_t package = packages_.add(input);
    const RecordList& records = packages_.records(package);
    const PackageReading& reading = records.reading();
    if (reading.failure)
        failures_.emplace(package, reading.failure->reason);
    const std::vector<RecordVersion> versions = versionsOf(records, package);
    twins_.add(isLost(reading) ? std::nullopt : reading.uuid, versions);
    versions_.add(versions);
}

void TogetherCheck::check(std::size_t package, FindingSink& sink) {
    if (package == 0)
        meetings_ = meetingsOf(versions_);
    checkReading(package, sink);
    if (const std::optional<PackageTwin> twin = twins_.of(package))
        sink.offer(findingOf(*twin, packages_.name(twin->other)));
    std::optional<RecordPlaces> places;
    for (; next_ < meetings_.size(); ++next_) {
        const Meeting& meeting = meetings_[next_];
        const RecordVersion& anchor = meeting.versions[meeting.anchor];
        if (anchor.package != package)
            break;
        if (!sink.wants(meeting.code)) {
            sink.addCode(meeting.code);
            continue;
        }
        Finding finding = findingOf(meeting, packages_);
        const std::string& name = packages_.name(package);
        if (!places && !isStandardInput(name)) // It cannot be read again.
            places.emplace(name);
        if (places)
            finding.location = places->of(packages_.record(anchor));
        sink.add(finding);
    }
}

void TogetherCheck::checkReading(std::size_t package, FindingSink& sink) {
    const auto failure = failures_.find(package);
    if (failure == failures_.end())
        return;
    const std::string& name = packages_.name(package);
    Errors errors(sink);
    if (isStandardInput(name)) // It cannot be read again.
        errors.offer({FindingCode::Unreadable, failure->second, NothingRead{}});
    else
        checkInput(PackageInput(name), errors);
}
