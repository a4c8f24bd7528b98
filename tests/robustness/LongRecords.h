/// @file
/// Records all of whose texts are too long for the buffer inside a std::string (15 bytes), so that
/// each of them takes an allocation, and what can be read of a record as a text.
///
/// The texts of a record differ by its @p version, so that two versions of it can be told apart.
/// Those of the version "incoming" are longer than those of the version "present".

#ifndef QENXML_TESTS_ROBUSTNESS_LONGRECORDS_H
#define QENXML_TESTS_ROBUSTNESS_LONGRECORDS_H

#include <memory>
#include <string>
#include <vector>

#include "model/PesticideByAmount.h"
#include "model/PesticideByPercent.h"
#include "model/QenGrower.h"
#include "model/QenRecData.h"

namespace test {

/// A long text without blanks that begins with @p start.
std::string longText(const std::string& start);

PesticideByPercent longPercentLine(unsigned number, const std::string& version);
PesticideByAmount longAmountLine(unsigned number, const std::string& version);

/// Product data of the rec with the identifier uuid(number). A pesticide has two lines of each kind
/// when it is present, three when it is incoming. Null for RecTypeNone.
std::unique_ptr<QenRecData> longData(RecType kind, unsigned number, const std::string& version);

QenRec longRec(unsigned number, RecType kind, const std::string& version);

QenFieldGeometry longGeometry(unsigned number, const std::string& version);

/// A field with these recs, whose kinds take turns by their numbers, and geometries.
QenField longField(unsigned number, const std::string& version, const std::vector<unsigned>& recs,
                   const std::vector<unsigned>& geometries);

QenFarm longFarm(unsigned number, const std::string& version, const std::vector<QenField>& fields);

QenGrower longGrower(unsigned number, const std::string& version,
                     const std::vector<QenFarm>& farms);

// Everything that a caller can read, as a text.
std::string text(const std::string& value);
std::string text(PestProduct& line);
std::string text(PesticideByAmount& line);
std::string text(QenRecData& data);
std::string text(std::unique_ptr<QenRecData>& data);
std::string text(QenRec& rec);
std::string text(QenFieldGeometry& geometry);
std::string text(QenField& field);
std::string text(QenFarm& farm);
std::string text(QenGrower& grower);

template <class Item>
std::string text(std::vector<Item>& items) {
    std::string result;
    for (Item& item : items)
        result += text(item) + "\n";
    return result;
}

} // namespace test

#endif
