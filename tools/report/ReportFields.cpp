#include "tools/report/ReportFields.h"

#include <map>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "tools/records/Centroid.h"
#include "tools/report/GroupedNumber.h"
#include "tools/report/Html.h"
#include "tools/report/RecCard.h"
#include "tools/text/NumberText.h"
#include "tools/text/Words.h"

namespace {

constexpr std::size_t recsShownAtOnce = 200; ///< More of them are folded away, field by field.
constexpr std::size_t mostPlaces = 5;        ///< Of a field.

/// Where a field is.
std::string placesOf(const FieldContext& context) {
    std::string text = htmlIdentifier(context.field.id());
    std::size_t places = 0;
    for (QenFieldGeometry& geometry : context.field.geometries()) {
        const LLA centroid = geometry.centroid();
        if (!isPlace(centroid, context.missingFrom(geometry)))
            continue;
        if (++places <= mostPlaces)
            text += fmt::format("<br>Centroid: latitude {}, longitude {}",
                                numberText(centroid.latitude), numberText(centroid.longitude));
    }
    return places <= mostPlaces
               ? text
               : text + "<br>" + groupedQuantity(places - mostPlaces, "more centroid");
}

/// The bars of a field's recs in the same unit have the same scale.
std::map<std::string, RateScale> scalesOf(const FieldContext& context) {
    std::map<std::string, RateScale> scales;
    for (QenRec& rec : context.field.recs()) {
        const Rates rates = ratesOf(rec, context.missingFrom(rec));
        scales[rates.unit].include(rates);
    }
    return scales;
}

} // namespace

void ReportFields::write() {
    sink_("<section id=\"fields\">\n<h2>Fields and recs</h2>\n");
    if (data_.counts().fields == 0)
        sink_("<p>There are no fields.</p>\n");
    for (PackageRecords& records : data_.records()) {
        if (isFull())
            break;
        write(records);
    }
    writeRest();
    sink_("</section>\n");
}

void ReportFields::write(PackageRecords& records) {
    sink_(fmt::format("<section>\n<h3>{}</h3>\n",
                      htmlName(data_.fileName(data_.packages()[records.package]))));
    forEachGrower(records.growers, records.gaps,
                  [this](QenGrower& grower, const GrowerGaps& gaps) { write(grower, gaps); });
    sink_("</section>\n");
}

void ReportFields::write(QenGrower& grower, const GrowerGaps& gaps) {
    for (QenFarm& farm : grower.farms()) {
        if (isFull())
            return;
        if (farm.fields().empty())
            continue;
        sink_(fmt::format("<h4>{}, {}</h4>\n",
                          htmlRecordName(grower.name(), "Grower without a name"),
                          htmlRecordName(farm.name(), "farm without a name")));
        for (QenField& field : farm.fields()) {
            if (!isFull())
                write({grower, farm, field, gaps});
        }
    }
}

void ReportFields::write(const FieldContext& context) {
    ++fields_;
    sink_(fmt::format("<h5>{}</h5>\n<p class=\"place\">{}</p>\n",
                      htmlRecordName(context.field.name(), "Field without a name"),
                      placesOf(context)));
    if (context.field.recs().empty())
        sink_("<p>No recs.</p>\n");
    else
        writeRecs(context);
}

void ReportFields::writeRecs(const FieldContext& context) {
    sink_(fmt::format("<details{}>\n<summary>{}</summary>\n<ul class=\"recs\">\n",
                      data_.counts().recs <= recsShownAtOnce ? " open" : "",
                      groupedQuantity(context.field.recs().size(), "rec")));
    const std::map<std::string, RateScale> scales = scalesOf(context);
    for (QenRec& rec : context.field.recs()) {
        if (recs_ == ReportData::mostRecs)
            break;
        ++recs_;
        const MissingNumbers& missing = context.missingFrom(rec);
        sink_(recCard(rec, missing, scales.at(ratesOf(rec, missing).unit)));
    }
    sink_("</ul>\n</details>\n");
}

void ReportFields::writeRest() {
    const std::size_t fields = data_.counts().fields - fields_;
    const std::size_t recs = data_.counts().recs - recs_;
    if (fields > 0 || recs > 0)
        sink_(fmt::format("<p>Not shown: {} and {}. <code>qenxml show</code> and <code>qenxml "
                          "export</code> write all of them.</p>\n",
                          groupedQuantity(fields, "more field"),
                          groupedQuantity(recs, "more rec")));
}
