/// @file
/// Product data in words, as a package gives them: nothing is escaped.

#ifndef QENXML_TOOLS_RECORDS_PRODUCTTEXT_H
#define QENXML_TOOLS_RECORDS_PRODUCTTEXT_H

#include <string>

#include "model/CustomFertilizerRec.h"
#include "model/QenRecData.h"
#include "tools/records/MissingNumbers.h"

/// What a pair of a code and a text means to a reader: the text, or else "code 7". Empty when
/// neither says anything: packages that do not give a code are read as 0, new records have -1.
std::string textOrCode(const std::string& text, int code);

/// "planting", "fertilizer", "blend" or "pesticide mix"; empty for null, as in the others.
std::string productKind(QenRecData* data);

/// The same as a program reads it: "planting", "commercialFertilizer", "customFertilizer" or
/// "pesticide".
std::string productKindKey(QenRecData* data);

/// What the product is called, such as "Corn, Quillmark Seed, QM 4417".
std::string productName(QenRecData* data);

/// As productName(), of names alone: "" rather than "code 7".
std::string productTitle(QenRecData* data);

/// "specific gravity 1.2; N 20%, K 5%"; of the numbers those that the package gives.
std::string blendContent(CustomFertilizerRec& blend, const MissingNumbers& missing);

#endif
