/// @file
/// Records as texts that show everything a caller can read of them, so that a test can compare
/// whole trees and GoogleTest shows where they differ.

#ifndef QENXML_TESTS_SUPPORT_DESCRIBE_H
#define QENXML_TESTS_SUPPORT_DESCRIBE_H

#include <string>
#include <vector>

#include "model/QenGrower.h"
#include "model/QenRecData.h"

namespace test {

// Taken by value, because most accessors are not const members.
std::string describe(QenRecData* data); ///< "none" for null.
std::string describe(QenRec rec);
std::string describe(QenFieldGeometry geometry);
std::string describe(QenField field);
std::string describe(QenFarm farm);
std::string describe(QenGrower grower);
std::string describe(std::vector<QenGrower> growers);

} // namespace test

#endif
