#include "tests/tools/report/Reports.h"

#include <utility>

#include "model/CommercialFertilizerRec.h"
#include "tests/support/Uuids.h"
#include "tools/report/ReportPage.h"

namespace test {

QenRec recOf(unsigned number, double total, const std::string& product) {
    QenRec rec;
    rec.setId(uuid(number));
    rec.setTotal(total);
    rec.setTotalUom("kg");
    if (!product.empty())
        rec.setRecData(new CommercialFertilizerRec(uuid(number), 7, product, 1, "kg"));
    return rec;
}

QenField fieldOf(unsigned number, const std::string& name, const LLA& centroid,
                 const std::vector<QenRec>& recs) {
    LLA place = centroid;
    QenField field(name, uuid(number), uuid(1), uuid(2), "", uuid(number), uuid(number), place);
    for (const QenRec& rec : recs)
        field.addRec(rec);
    return field;
}

QenGrower growerOf(unsigned number, unsigned farm, const std::vector<QenField>& fields) {
    QenFarm result("Farm " + std::to_string(farm), uuid(farm), uuid(number));
    for (const QenField& field : fields)
        result.addField(field);
    QenGrower grower("Grower " + std::to_string(number), uuid(number));
    grower.addFarm(result);
    return grower;
}

QenGrower growerWith(const std::vector<QenRec>& recs) {
    return growerOf(1, 2, {fieldOf(3, "Field", {0.0, 0.0, 0.0}, recs)});
}

PackageReading readingOf(const std::string& name, const std::vector<QenGrower>& growers) {
    PackageReading reading;
    reading.name = name;
    reading.growers = growers;
    return reading;
}

PackageReading brokenReading(const std::string& name, const std::vector<QenGrower>& growers) {
    PackageReading reading = readingOf(name, growers);
    reading.failure = ReadFailure{"broken", std::nullopt};
    return reading;
}

void add(ReportData& data, const PackageReading& reading, const std::vector<Finding>& findings) {
    PackageFindings sink = data.nextFindings();
    for (const Finding& finding : findings)
        sink.offer(finding);
    data.add(reading, sink);
}

ReportData dataOf(const std::vector<PackageReading>& readings) {
    ReportData data;
    for (const PackageReading& reading : readings)
        add(data, reading);
    return data;
}

std::string written(const std::function<void(const TextSink&)>& write) {
    std::string text;
    write([&text](std::string_view part) { text += part; });
    return text;
}

std::string pageOf(ReportData data) {
    std::string page = written([&data](const TextSink& sink) { writeReport(data, sink); });
    const std::size_t begin = page.find("<style>");
    return page.erase(begin, page.find("</style>") - begin);
}

std::string pageOf(const std::vector<PackageReading>& readings) {
    return pageOf(dataOf(readings));
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

std::size_t occurrences(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; ++at)
        ++count;
    return count;
}

} // namespace test
