/// @file
/// The operations that are measured, so that all programs measure the same.

#ifndef QENXML_BENCH_OPERATIONS_H
#define QENXML_BENCH_OPERATIONS_H

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "model/QenGrower.h"

namespace bench {

/// What an operation made. A measurement ends before it is released.
using Result = std::shared_ptr<const void>;

/// An operation, ready to be done once.
using Operation = std::function<Result()>;

/// An operation by its name, on one package file or on two. What it needs is prepared here.
///
/// - load: the bare load_file()
/// - parse: parseFile()
/// - parse+copy: parseFile() and getGrowers()
/// - copy: a deep copy of what is in all the files
/// - merge: what is in the second file into what is in the first one
/// - the readers of Readers.h
///
/// @throws std::runtime_error for an unknown name; preparing and doing it for a file that cannot be
///         read
Operation operationNamed(const std::string& name, const std::vector<std::string>& files);

/// The time that the processor has spent on this process, in seconds. The operations have one
/// thread and wait for nothing (their files are in the page cache), so that on an idle machine it
/// is the time that passes; on a busy one it leaves out the waiting for the processor.
double processorSeconds();

/// How long an operation takes, without releasing the result.
double secondsOf(const Operation& operation);

/// What a package holds.
std::vector<QenGrower> growersOf(const std::string& path);

/// Merges as a host does: the other growers stay, those with a new identifier are appended.
void merge(std::vector<QenGrower>& growers, const std::vector<QenGrower>& others);

std::size_t recsIn(std::vector<QenGrower>& growers);

} // namespace bench

#endif
