#include "tools/report/ReportPage.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>

#include "model/version.h"
#include "parser/internal/TagConstants.h"
#include "tools/files/PackageUuid.h"
#include "tools/findings/Explanation.h"
#include "tools/findings/FindingText.h"
#include "tools/records/Centroid.h"
#include "tools/records/ProductText.h"
#include "tools/records/RecordWalk.h"
#include "tools/report/FileNames.h"
#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"
#include "tools/report/HtmlTable.h"
#include "tools/report/RateBar.h"
#include "tools/report/ReportMap.h"
#include "tools/report/ReportStyle.h"
#include "tools/text/Escape.h"
#include "tools/text/NumberText.h"
#include "tools/text/Words.h"

namespace tag = qenxml::tag;

namespace {

// A page of everything in a package of 100 MB would open in no browser.
constexpr std::size_t mostRecs = 2000;
constexpr std::size_t mostFields = 2000;
constexpr std::size_t mostRows = 1000;
constexpr std::size_t recsShownAtOnce = 200; ///< More of them are folded away, field by field.

/// A number of things: "1 rec", "2 recs".
std::string count(std::size_t number, std::string_view thing) {
    return groupedText(number) + " " + plural(number, thing);
}

bool isStandardInput(const PackageReading& reading) {
    return reading.name == "-";
}

std::string identifier(const boost::uuids::uuid& id) {
    return fmt::format("<span class=\"id\">{}</span>", to_string(id));
}

std::string nameOr(const std::string& name, const char* otherwise) {
    return name.empty() ? otherwise : htmlName(name);
}

const char* readState(const PackageReading& reading) {
    return !reading.failure ? "completely" : isLost(reading) ? "not at all" : "up to a failure";
}

class PageWriter {
public:
    PageWriter(std::vector<ReportPackage>& packages, const TextSink& sink)
        : packages_(packages), sink_(sink) {
        for (ReportPackage& package : packages) {
            counts_ += package.counts;
            totals_.add(package.reading.growers, package.reading.gaps);
            addPoints(package.reading);
            if (!isStandardInput(package.reading))
                files_.add(package.reading.name);
        }
    }

    void write() {
        writeHead();
        writeSummary();
        writeFindings();
        writeMap();
        writeProducts();
        writeFields();
        sink_(fmt::format("</main>\n<footer><p>Made by qenxml {}.</p></footer>\n</body>\n</html>\n",
                          QENXML_VERSION));
    }

private:
    void addPoints(PackageReading& reading) {
        forEachField(reading.growers, reading.gaps, [this](const FieldContext& context) {
            for (QenFieldGeometry& geometry : context.field.geometries()) {
                if (isPlace(geometry.centroid(), context.missingFrom(geometry)))
                    points_.push_back({escape(context.field.name()), geometry.centroid()});
                else
                    ++withoutPlace_;
            }
        });
    }

    /// The file of a package as text, not escaped.
    std::string_view fileName(const PackageReading& reading) const {
        return isStandardInput(reading) ? "standard input" : files_.name(reading.name);
    }

    std::string shownName(const PackageReading& reading) const {
        return isStandardInput(reading) ? "standard input" : htmlName(files_.name(reading.name));
    }

    std::size_t findings(Severity severity) const {
        std::size_t sum = 0;
        for (const ReportPackage& package : packages_)
            sum += package.findings.counts().of(severity);
        return sum;
    }

    void writeHead() {
        sink_("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
              "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n");
        const PackageReading& first = packages_.front().reading;
        const std::string number = count(packages_.size(), "package");
        const bool one = packages_.size() == 1;
        // A title holds no elements.
        sink_(fmt::format("<title>Prescription report: {}</title>\n<style>{}</style>\n",
                          one ? html(fileName(first)) : number, reportStyle));
        sink_(fmt::format(
            "</head>\n<body>\n<header>\n<h1>Prescription report</h1>\n<p>{}</p>\n{}</header>\n"
            "<nav aria-label=\"Contents\">\n<ul>\n<li><a href=\"#summary\">Summary</a></li>\n"
            "<li><a href=\"#findings\">Findings</a></li>\n<li><a href=\"#map\">Map</a></li>\n"
            "<li><a href=\"#products\">Products</a></li>\n"
            "<li><a href=\"#fields\">Fields and recs</a></li>\n</ul>\n</nav>\n<main>\n",
            one ? shownName(first) : number, folderLine()));
    }

    std::string folderLine() const {
        const std::string folder = files_.folder();
        return folder.empty()
                   ? ""
                   : fmt::format("<p class=\"quiet\">Folder: {}</p>\n", htmlName(folder));
    }

    void writeFigure(const char* what, std::size_t number) {
        sink_(fmt::format("<li>{} <b>{}</b></li>\n", what, groupedText(number)));
    }

    void writeSummary() {
        sink_("<section id=\"summary\">\n<h2>Summary</h2>\n<ul class=\"figures\">\n");
        writeFigure("Packages", packages_.size());
        writeFigure("Growers", counts_.growers);
        writeFigure("Farms", counts_.farms);
        writeFigure("Fields", counts_.fields);
        writeFigure("Recs", counts_.recs);
        writeFigure("Errors", findings(Severity::Error));
        writeFigure("Warnings", findings(Severity::Warning));
        writeFigure("Notes", findings(Severity::Note));
        sink_("</ul>\n");
        if (counts_.recsWithoutProduct > 0)
            sink_(fmt::format("<p>{} without product data.</p>\n",
                              count(counts_.recsWithoutProduct, "rec")));
        const HtmlTable table("Packages", {{"File"},
                                           {"Read"},
                                           {"Growers", true},
                                           {"Fields", true},
                                           {"Recs", true},
                                           {"Findings", true}});
        sink_(table.begin());
        std::size_t rows = 0;
        for (const ReportPackage& package : packages_) {
            if (rows++ < mostRows)
                sink_(table.row(cells(package)));
        }
        endTable(packages_.size(), "package");
        sink_("</section>\n");
    }

    std::vector<std::string> cells(const ReportPackage& package) const {
        // Mostly the UUID is the name of the file.
        const bool saysUuid = !package.reading.uuid || isNamedByUuid(package.reading.name);
        return {shownName(package.reading) +
                    (saysUuid ? "" : "<br>" + identifier(*package.reading.uuid)),
                readState(package.reading),
                groupedText(package.counts.growers),
                groupedText(package.counts.fields),
                groupedText(package.counts.recs),
                groupedText(package.findings.counts().sum())};
    }

    void endTable(std::size_t rows, std::string_view thing) {
        sink_(HtmlTable::end());
        if (rows > mostRows)
            sink_(fmt::format("<p>{} more not shown.</p>\n", count(rows - mostRows, thing)));
    }

    void writeFindings() {
        sink_("<section id=\"findings\">\n<h2>Findings</h2>\n");
        bool any = false;
        for (const ReportPackage& package : packages_) {
            if (package.findings.counts().sum() == 0)
                continue;
            any = true;
            sink_(fmt::format("<h3>{}</h3>\n", shownName(package.reading)));
            sink_("<ul class=\"findings\">\n");
            for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note})
                for (const Finding& finding : package.findings.kept())
                    if (finding.severity() == severity)
                        write(finding);
            sink_("</ul>\n");
            const std::size_t hidden =
                package.findings.counts().sum() - package.findings.kept().size();
            if (hidden > 0)
                sink_(fmt::format("<p>{} more not shown; <code>qenxml check</code> prints all of "
                                  "them.</p>\n",
                                  count(hidden, "finding")));
        }
        if (!any)
            sink_("<p>No problems were found.</p>\n");
        sink_("</section>\n");
    }

    void write(const Finding& finding) {
        const std::string_view word = wordFor(finding.severity());
        sink_(fmt::format(
            "<li class=\"{}\"><p><strong>{}</strong>{}: {}</p>\n", word, capitalised(word),
            finding.location ? fmt::format(" in line {}, column {}", finding.location->begin.line,
                                           finding.location->begin.column)
                             : "",
            htmlOfEscaped(finding.found)));
        sink_(fmt::format("<p>Consequence: {}</p>\n", htmlOfEscaped(consequenceText(finding))));
        if (const std::string records = recordsText(finding); !records.empty())
            sink_(fmt::format("<p>In: <bdi>{}</bdi></p>\n", htmlOfEscaped(records)));
        sink_(
            fmt::format("<p>What to do: {}</p>\n", htmlWithCode(explanationOf(finding.code).cure)));
        sink_("<p class=\"quiet\">");
        if (!finding.path.empty())
            sink_(fmt::format("<code>{}</code> ", htmlOfEscaped(finding.path)));
        sink_(fmt::format("[{}]</p></li>\n", html(kindOf(finding.code).code)));
    }

    void writeMap() {
        sink_("<section id=\"map\">\n<h2>Map of the fields</h2>\n");
        if (points_.empty()) {
            sink_("<p>No field has a centroid that could be drawn.</p>\n");
        } else {
            sink_("<figure>\n");
            sink_(reportMap(points_));
            sink_("<figcaption>Each point is the centroid of a field. North is up; the scale is "
                  "that of the middle of the map.</figcaption>\n</figure>\n");
        }
        if (withoutPlace_ > 0 && !points_.empty())
            sink_(fmt::format("<p>Not on the map, because the centroid is missing or out of range: "
                              "{}.</p>\n",
                              count(withoutPlace_, "field")));
        sink_("</section>\n");
    }

    void writeProducts() {
        sink_("<section id=\"products\">\n<h2>Products</h2>\n");
        if (totals_.totals().empty()) {
            sink_("<p>There are no recs.</p>\n</section>\n");
            return;
        }
        const HtmlTable table("Totals by product and unit",
                              {{"Product"}, {"Recs", true}, {"Total", true}, {"Area", true}});
        sink_(table.begin());
        std::size_t rows = 0;
        for (const auto& [product, total] : totals_.totals()) {
            if (rows++ < mostRows)
                sink_(table.row(cells(product, total)));
        }
        endTable(totals_.totals().size(), "row");
        if (totals_.repeated() > 0)
            sink_(fmt::format("<p>In more than one package: {}. Each counts once, as it is read "
                              "first.</p>\n",
                              count(totals_.repeated(), "rec")));
        sink_("</section>\n");
    }

    static std::vector<std::string> cells(const ProductUnit& product, const ProductTotal& total) {
        std::string areas;
        for (const auto& [unit, area] : total.areas)
            areas +=
                fmt::format("{}{} {}", areas.empty() ? "" : "<br>", area.text(), htmlName(unit));
        const std::string name =
            product.kind.empty()
                ? "no product data"
                : nameOr(product.name, "without a name") +
                      fmt::format("<br><span class=\"quiet\">{}</span>", product.kind);
        return {name, groupedText(total.recs), totalText(product, total), areas};
    }

    static std::string totalText(const ProductUnit& product, const ProductTotal& total) {
        const std::string sum = total.total.text();
        std::string known = sum.empty() ? "" : fmt::format("{} {}", sum, htmlName(product.unit));
        if (total.recsWithoutTotal == 0)
            return known;
        return fmt::format("{}{}<span class=\"quiet\">not given by {}</span>", known,
                           known.empty() ? "" : "<br>", count(total.recsWithoutTotal, "rec"));
    }

    void writeFields() {
        sink_("<section id=\"fields\">\n<h2>Fields and recs</h2>\n");
        for (ReportPackage& package : packages_) {
            if (fields_ >= mostFields || recs_ >= mostRecs)
                break;
            sink_(fmt::format("<section>\n<h3>{}</h3>\n", shownName(package.reading)));
            if (package.counts.fields == 0)
                sink_("<p>No fields.</p>\n");
            forEachGrower(
                package.reading.growers, package.reading.gaps,
                [this](QenGrower& grower, const GrowerGaps& gaps) { write(grower, gaps); });
            sink_("</section>\n");
        }
        if (fields_ < counts_.fields || recs_ < counts_.recs)
            sink_(fmt::format("<p>Not shown: {} and {}. <code>qenxml show</code> and <code>qenxml "
                              "export</code> write all of them.</p>\n",
                              count(counts_.fields - fields_, "more field"),
                              count(counts_.recs - recs_, "more rec")));
        sink_("</section>\n");
    }

    void write(QenGrower& grower, const GrowerGaps& gaps) {
        for (QenFarm& farm : grower.farms()) {
            if (fields_ >= mostFields || recs_ >= mostRecs)
                return;
            if (farm.fields().empty())
                continue;
            sink_(fmt::format("<h4>{}, {}</h4>\n", nameOr(grower.name(), "Grower without a name"),
                              nameOr(farm.name(), "farm without a name")));
            for (QenField& field : farm.fields()) {
                if (fields_ < mostFields && recs_ < mostRecs)
                    write({grower, farm, field, gaps});
            }
        }
    }

    void write(const FieldContext& context) {
        QenField& field = context.field;
        ++fields_;
        sink_(fmt::format("<h5>{}</h5>\n<p class=\"place\">{}</p>\n",
                          nameOr(field.name(), "Field without a name"), places(context)));
        if (field.recs().empty()) {
            sink_("<p>No recs.</p>\n");
            return;
        }
        const std::map<std::string, RateScale> scales = rateScales(context);
        sink_(fmt::format("<details{}>\n<summary>{}</summary>\n<ul class=\"recs\">\n",
                          counts_.recs <= recsShownAtOnce ? " open" : "",
                          count(field.recs().size(), "rec")));
        for (QenRec& rec : field.recs()) {
            const MissingNumbers& missing = context.missingFrom(rec);
            if (recs_ < mostRecs)
                write(rec, missing, scales.at(rates(rec, missing).unit));
        }
        sink_("</ul>\n</details>\n");
    }

    /// Where a field is.
    static std::string places(const FieldContext& context) {
        std::string text = identifier(context.field.id());
        for (QenFieldGeometry& geometry : context.field.geometries()) {
            const LLA centroid = geometry.centroid();
            if (isPlace(centroid, context.missingFrom(geometry)))
                text += fmt::format("<br>Centroid: latitude {}, longitude {}",
                                    numberText(centroid.latitude), numberText(centroid.longitude));
        }
        return text;
    }

    static Rates rates(QenRec& rec, const MissingNumbers& missing) {
        return {missing.known(tag::MinimumRate, rec.minimumRate()),
                missing.known(tag::AverageRate, rec.averageRate()),
                missing.known(tag::MaximumRate, rec.maximumRate()),
                textOrCode(rec.rateUom(), rec.rateUomId())};
    }

    /// The bars of a field's recs in the same unit have the same scale.
    static std::map<std::string, RateScale> rateScales(const FieldContext& context) {
        std::map<std::string, RateScale> scales;
        for (QenRec& rec : context.field.recs()) {
            const Rates values = rates(rec, context.missingFrom(rec));
            scales[values.unit].include(values);
        }
        return scales;
    }

    void write(QenRec& rec, const MissingNumbers& missing, const RateScale& scale) {
        ++recs_;
        const Rates values = rates(rec, missing);
        sink_(fmt::format("<li><h6>{}</h6>\n", nameOr(rec.name(), "Rec without a name")));
        writeProduct(rec.recData(), missing);
        sink_(rateBar(values, scale));
        sink_("<dl class=\"facts\">\n");
        writeFact("Rates", ratesText(values));
        writeFact("Total", quantity(missing.known(tag::Total, rec.total()),
                                    textOrCode(rec.totalUom(), rec.totalUomId())));
        writeFact("Area", quantity(missing.known(tag::Area, rec.area()),
                                   textOrCode(rec.areaUom(), rec.areaUomId())));
        writeFact("Operation", rec.operationName());
        writeFact("Season", textOrCode(rec.seasonName(), rec.seasonId()));
        writeFact("Created", rec.creationDate());
        writeFact("Edited", rec.editDate());
        writeFact("Column", rec.recDbfCol());
        sink_(fmt::format("<dt>ID</dt><dd>{}</dd>\n</dl></li>\n", identifier(rec.id())));
    }

    void writeProduct(QenRecData* data, const MissingNumbers& missing) {
        if (data == nullptr) {
            sink_("<p class=\"warning\"><strong>No product data</strong></p>\n");
            return;
        }
        const std::string name = productName(data);
        sink_(fmt::format("<p>{}{}{}</p>\n", productKind(data), name.empty() ? "" : ": ",
                          htmlName(name)));
        const std::string content =
            data->recType() == RecTypeCustomFertilizer
                ? blendContent(static_cast<CustomFertilizerRec&>(*data), missing)
                : "";
        if (!content.empty())
            sink_(fmt::format("<p class=\"quiet\">{}</p>\n", html(content)));
    }

    /// A quantity with its unit; empty when the package does not give it.
    static std::string quantity(const std::optional<double>& value, const std::string& unit) {
        return value ? groupedText(*value) + (unit.empty() ? "" : " " + unit) : "";
    }

    /// @param value not escaped; nothing is written for an empty one
    void writeFact(const char* what, const std::string& value) {
        if (!value.empty())
            sink_(fmt::format("<dt>{}</dt><dd>{}</dd>\n", what, htmlName(value)));
    }

    std::vector<ReportPackage>& packages_;
    const TextSink& sink_;
    FileNames files_;
    RecordCounts counts_;
    ProductTotals totals_;
    std::vector<MapPoint> points_;
    std::size_t withoutPlace_ = 0;
    std::size_t fields_ = 0; // written so far
    std::size_t recs_ = 0;   // written so far
};

} // namespace

void writeReport(std::vector<ReportPackage>& packages, const TextSink& sink) {
    PageWriter(packages, sink).write();
}
