/// @file
/// What reading makes of what is found, as data. The sentences about it are made in FindingText.

#ifndef QENXML_TOOLS_CHECK_CONSEQUENCE_H
#define QENXML_TOOLS_CHECK_CONSEQUENCE_H

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

/// Everything is read as it is written.
struct Kept {};

/// Something is left out.
struct Dropped {
    std::string what; ///< The name of an element, the value of an attribute, or a text.
};

/// Something is read as a value that is not what is written.
struct ReadAs {
    std::string value;
    bool onceComplete = false; ///< Not before the product that it is a part of is complete.
};

/// A record before it in the file is lost, because this one takes its place.
struct Replaces {
    const char* record;     ///< What it is: "farm".
    std::size_t line;       ///< Where it stands.
    std::size_t fields = 0; ///< How many are lost with it.
    std::size_t recs = 0;   ///< How many are lost with it.
};

/// What a rec may lack.
enum class RecPart { Product, Operation, Season };

/// The rec is kept without a part.
struct Without {
    RecPart part;
    std::string name = {};      ///< What it would be called, if that is lost.
    std::string nextError = {}; ///< What error appears once this is mended, if one does.
};

/// Nothing is read.
struct NothingRead {};

/// The grower that it stands in and the rest of the file are not read.
struct ReadingEnds {
    std::size_t growers; ///< How many come before, which are read.
};

/// Reading ends before this; it would end here.
struct NotReached {
    std::size_t line;   ///< Where it ends.
    std::size_t errors; ///< How many come before this one.
    bool sameGrower;    ///< It ends in the grower that this stands in.
};

/// What comes after it is not checked.
struct CheckEnds {};

/// One of the versions of a record. Texts are safe to print.
struct MergedVersion {
    std::string file;         ///< The first package that has it; of a farm the last.
    std::size_t packages = 1; ///< How many have it.
    bool canCount = true;     ///< Whether it is shown in some order of the packages.
    std::vector<std::pair<std::string, std::string>> values; ///< Those that differ, by name.
};

/// Of several versions of a record merging shows one, which depends on the order of the packages.
struct Merges {
    std::vector<MergedVersion> versions;   ///< That which is shown in this order first.
    std::size_t more = 0;                  ///< Versions that are none of those.
    std::optional<std::size_t> editedLast; ///< The number of the one that was, if that is known.
};

using Consequence = std::variant<Kept, Dropped, ReadAs, Replaces, Without, NothingRead, ReadingEnds,
                                 NotReached, CheckEnds, Merges>;

#endif
