/// @file
/// All that `qenxml check` can find: the only home of the codes, and of all that is the same for
/// the findings of a code.

#ifndef QENXML_TOOLS_CHECK_FINDINGCODES_H
#define QENXML_TOOLS_CHECK_FINDINGCODES_H

#include <array>
#include <cstddef>
#include <string_view>

/// How bad a finding is, the least first.
enum class Severity {
    Note,    ///< Read as it is written, but hardly meant so.
    Warning, ///< Read, but something of it is lost or changed.
    Error    ///< Reading the package fails here.
};

/// A severity as people and programs write it.
constexpr std::string_view wordFor(Severity severity) {
    constexpr std::array<std::string_view, 3> words = {"note", "warning", "error"};
    return words[static_cast<std::size_t>(severity)];
}

// FINDING(name of the constant, code, severity, title, consequence). docs/findings.md explains each
// code. The consequence is the sentence about it, where it is another than that of all consequences
// of its kind; {} in it stands for the value that is read or dropped.
#define QENXML_FINDINGS(FINDING)                                                                   \
    FINDING(Unreadable, "unreadable", Error, "the file cannot be read")                            \
    FINDING(PathTooShort, "path-too-short", Error, "the path is too short for a package UUID",     \
            "nothing of the file is read when it is given by this path")                           \
    FINDING(NameWithoutUuid, "name-without-uuid", Error, "the file name has no package UUID")      \
    FINDING(NotWellFormed, "not-well-formed", Error, "the file is not well-formed XML")            \
    FINDING(NoRecPackage, "no-recpackage", Error, "the root element is not RecPackage")            \
    FINDING(GrowerId, "grower-id", Error, "a grower has no readable identifier")                   \
    FINDING(FarmId, "farm-id", Error, "a farm has no readable identifier")                         \
    FINDING(FieldId, "field-id", Error, "a field has no readable identifier")                      \
    FINDING(FieldGeometryId, "field-geometry-id", Error,                                           \
            "a field's geometry has no readable identifier")                                       \
    FINDING(GeometryFileId, "geometry-file-id", Error,                                             \
            "a field's geometry file has no readable identifier")                                  \
    FINDING(RecId, "rec-id", Error, "a rec has no readable identifier")                            \
    FINDING(RecGeometryId, "rec-geometry-id", Error,                                               \
            "a rec's geometry has no readable identifier")                                         \
    FINDING(OperationId, "operation-id", Error, "an operation has no readable identifier")         \
    FINDING(ManagementZoneId, "management-zone-id", Error,                                         \
            "a management zone has an unreadable identifier")                                      \
    FINDING(BlendId, "custom-fertilizer-product-id", Error,                                        \
            "a custom fertilizer has no readable identifier")                                      \
    FINDING(AfterList, "element-after-list", Error, "something follows the items of a list")       \
    FINDING(NameNotUuid, "name-not-uuid", Warning, "the file is not named by a UUID",              \
            "every rec carries the invented package UUID {}")                                      \
    FINDING(InvalidUtf8, "invalid-utf8", Warning, "the file holds bytes that are not UTF-8",       \
            "this and the like are passed on as they are; hosts may not show them")                \
    FINDING(EncodingIgnored, "encoding-ignored", Warning, "the declared encoding is ignored",      \
            "programs that follow the declaration read other letters")                             \
    FINDING(EncodingMistaken, "encoding-mistaken", Warning,                                        \
            "the declared encoding is another than that of the file",                              \
            "each letter that is not of ASCII is read as two or more others")                      \
    FINDING(DoctypeIgnored, "doctype-ignored", Warning, "what a DOCTYPE declares is ignored",      \
            "programs that follow it may read other values")                                       \
    FINDING(RefusedByOthers, "refused-by-others", Warning, "other programs cannot read the file",  \
            "this library reads it; programs that follow the standard of XML do not")              \
    FINDING(NoGrower, "no-grower", Warning, "the package has no grower",                           \
            "nothing is read from the package")                                                    \
    FINDING(BeforeList, "item-before-list", Warning, "something before a list is skipped")         \
    FINDING(OtherNameInList, "other-name-in-list", Warning,                                        \
            "an item of a list has the wrong name", "it counts as a {}")                           \
    FINDING(IdentifierDigit, "identifier-digit", Warning,                                          \
            "an identifier holds a character that is no digit")                                    \
    FINDING(IdentifierTrailing, "identifier-trailing", Warning, "text follows an identifier",      \
            "that is ignored; it is read as {}")                                                   \
    FINDING(DuplicateGrower, "duplicate-grower", Warning, "two growers have the same identifier",  \
            "both are kept, as two growers")                                                       \
    FINDING(DuplicateFarm, "duplicate-farm", Warning, "two farms have the same identifier")        \
    FINDING(DuplicateField, "duplicate-field", Warning, "two fields have the same identifier")     \
    FINDING(DuplicateRec, "duplicate-rec", Warning, "two recs have the same identifier")           \
    FINDING(NoProduct, "no-product", Warning, "a rec has no product")                              \
    FINDING(ProductIncomplete, "product-incomplete", Warning, "a product is incomplete")           \
    FINDING(ProductUnknown, "product-unknown", Warning, "a product is of an unknown kind")         \
    FINDING(PesticideMix, "pesticide-mix", Warning, "a pesticide mix is not read")                 \
    FINDING(TextBeforeProduct, "text-before-product", Warning, "text stands before a product")     \
    FINDING(SecondProduct, "second-product", Warning, "a rec has more than one product",           \
            "{} is ignored")                                                                       \
    FINDING(OperationNil, "operation-nil", Warning, "an operation has the nil identifier")         \
    FINDING(SeasonNegative, "season-negative", Warning, "a season has a negative number")          \
    FINDING(SeasonWithoutId, "season-without-id", Warning, "a season has no number",               \
            "the number of the season is read as {}")                                              \
    FINDING(NotANumber, "not-a-number", Warning, "a number is not a number")                       \
    FINDING(NumberCutOff, "number-cut-off", Warning, "a number is cut off")                        \
    FINDING(NumberOutOfRange, "number-out-of-range", Warning, "a number is out of range")          \
    FINDING(NumberNotFinite, "number-not-finite", Warning, "a number is infinite or undefined")    \
    FINDING(NumberHexadecimal, "number-hexadecimal", Warning, "a number is hexadecimal")           \
    FINDING(UnknownElement, "unknown-element", Warning, "an element is unknown")                   \
    FINDING(MisspeltElement, "misspelt-element", Warning, "an element may be misspelt")            \
    FINDING(MisplacedElement, "misplaced-element", Warning, "an element stands in another one")    \
    FINDING(RepeatedElement, "repeated-element", Warning, "an element is repeated",                \
            "the element is ignored with everything in it; the first one counts")                  \
    FINDING(UnknownAttribute, "unknown-attribute", Warning, "an attribute is unknown",             \
            "its value \"{}\" is ignored")                                                         \
    FINDING(MisspeltAttribute, "misspelt-attribute", Warning, "an attribute may be misspelt",      \
            "its value \"{}\" is ignored")                                                         \
    FINDING(RepeatedAttribute, "repeated-attribute", Warning, "an attribute is repeated",          \
            "\"{}\" is ignored; the first one counts")                                             \
    FINDING(StrayText, "stray-text", Warning, "text stands where none is read",                    \
            "the text is ignored")                                                                 \
    FINDING(TextCutOff, "text-cut-off", Warning, "only the first part of a text is read",          \
            "it is read as \"{}\"")                                                                \
    FINDING(ReferenceToNul, "reference-to-nul", Warning, "a reference ends a value",               \
            "it is read as \"{}\"")                                                                \
    FINDING(ReferenceToNoCharacter, "reference-to-no-character", Warning,                          \
            "a reference stands for no character",                                                 \
            "it gives bytes that are not UTF-8; hosts may not show them")                          \
    FINDING(ReferenceUnknown, "reference-unknown", Warning, "a reference is none that XML knows",  \
            "it is read as it is written, as \"{}\"")                                              \
    FINDING(ControlCharacter, "control-character", Warning, "a value holds a control character",   \
            "it is passed on; hosts may not show it")                                              \
    FINDING(NoStatistics, "no-recstats", Warning, "a rec has no statistics",                       \
            "its rates, total and area are read as {}")                                            \
    FINDING(StatisticsIncomplete, "recstats-incomplete", Note, "statistics are incomplete",        \
            "what is missing is read as {}")                                                       \
    FINDING(RateOrder, "rate-order", Note, "minimum, average and maximum are out of order",        \
            "the rates are kept as they are")                                                      \
    FINDING(RateWithoutUnit, "rate-without-unit", Note, "a rate has no unit",                      \
            "nobody can tell what the rates mean")                                                 \
    FINDING(TotalWithoutUnit, "total-without-unit", Note, "a total has no unit",                   \
            "nobody can tell what the total means")                                                \
    FINDING(AreaWithoutUnit, "area-without-unit", Note, "an area has no unit",                     \
            "nobody can tell what the area means")                                                 \
    FINDING(TotalMismatch, "total-mismatch", Note, "a total is not rate times area",               \
            "the total is passed on as it is, and so are rate and area")                           \
    FINDING(UnitsDisagree, "units-disagree", Note,                                                 \
            "the units of rate, area and total do not go together",                                \
            "the units are passed on as they are")                                                 \
    FINDING(RatesZero, "rates-zero", Note, "there is a total, but all rates are 0",                \
            "hosts show, and may apply, a rate of 0")                                              \
    FINDING(UnitCode, "unit-code", Note, "codes and texts of units contradict each other",         \
            "hosts that go by the code and hosts that go by the text see different units")         \
    FINDING(CentroidRange, "centroid-range", Note, "coordinates are out of range",                 \
            "the field is somewhere off the map")                                                  \
    FINDING(CentroidZero, "centroid-zero", Note, "the centroid of a field is at (0, 0)",           \
            "the centroid is read as {}")                                                          \
    FINDING(CentroidFar, "centroid-far", Note, "a field is far from the others of its farm",       \
            "the field is shown where its centroid says")                                          \
    FINDING(NotADate, "not-a-date", Note, "a date is not a date",                                  \
            "the text is passed on as it is")                                                      \
    FINDING(DateOrder, "date-order", Note, "a rec was edited before it was created",               \
            "the dates are passed on as they are")                                                 \
    FINDING(DbfColumn, "dbf-column", Note, "no DBF file can have such a column",                   \
            "hosts will not find the rates of the rec in its DBF file")                            \
    FINDING(EmptyName, "empty-name", Note, "a record has no name", "hosts can show no name")       \
    FINDING(ProductWithoutName, "product-without-name", Note, "a product has no name",             \
            "hosts can only show its number")                                                      \
    FINDING(NilIdentifier, "nil-identifier", Note, "an identifier is nil",                         \
            "hosts cannot tell it from an identifier that is not there")                           \
    FINDING(NumberEmpty, "number-empty", Note, "an element for a number is empty")                 \
    FINDING(PackageTwice, "package-twice", Warning, "two packages have the same UUID",             \
            "recs of both name the same package")                                                  \
    FINDING(PackageRenamed, "package-renamed", Warning, "a package is there under two names",      \
            "what it holds counts once; each rec names the package that is read first")            \
    FINDING(NameDiffers, "name-differs", Warning, "a record has two names")                        \
    FINDING(BoundaryDiffers, "boundary-differs", Warning, "a boundary has two versions")           \
    FINDING(RecDiffers, "rec-differs", Warning, "a rec has two versions")                          \
    FINDING(InTwoPlaces, "in-two-places", Warning, "a record stands in two places",                \
            "merging keeps it in each of them, as if there were two")                              \
    FINDING(BoundaryAdded, "boundary-added", Note, "a field has two boundaries",                   \
            "merging keeps them all; each rec names its own")

/// What can be found.
enum class FindingCode : std::size_t {
#define QENXML_FINDING_CONSTANT(name, ...) name,
    QENXML_FINDINGS(QENXML_FINDING_CONSTANT)
#undef QENXML_FINDING_CONSTANT
};

/// Whether it is about several packages, of which `qenxml check --together` tells.
constexpr bool isAboutSeveral(FindingCode code) {
    return code >= FindingCode::PackageTwice;
}

/// What is the same for all findings of a code.
struct FindingKind {
    const char* code; ///< As people and programs write it.
    Severity severity;
    const char* title;                 ///< What is wrong, in general.
    std::string_view consequence = {}; ///< As in the table; empty where it says nothing.
};

/// All kinds, in the order of FindingCode.
inline constexpr std::array findingKinds = {
#define QENXML_FINDING_KIND(name, code, severity, ...)                                             \
    FindingKind{code, Severity::severity, __VA_ARGS__},
    QENXML_FINDINGS(QENXML_FINDING_KIND)
#undef QENXML_FINDING_KIND
};

constexpr const FindingKind& kindOf(FindingCode code) {
    return findingKinds[static_cast<std::size_t>(code)];
}

#endif
