/// @file
/// Texts of packages and file names in a page of HTML: nothing in them can be taken for markup.

#ifndef QENXML_TOOLS_REPORT_HTML_H
#define QENXML_TOOLS_REPORT_HTML_H

#include <string>
#include <string_view>

#include <boost/uuid/uuid.hpp>

/// A text of others for the content of elements and for attributes in quotes. What is not seen, or
/// changes the direction of what stands around it, is escaped as by escape().
std::string html(std::string_view text);

/// A text that has been through escape() already, and may have characters of our own in it that
/// change the direction of writing.
std::string htmlOfEscaped(std::string_view text);

/// A text of our own in which parts of packages stand between "`".
std::string htmlWithCode(std::string_view text);

/// A text whose direction of writing changes nothing outside of it.
std::string htmlName(std::string_view text);

/// The same of the name of a record, which is cut if it is very long.
///
/// @param otherwise in place of an empty name
std::string htmlRecordName(std::string_view name, const char* otherwise = "");

/// The name of a record without the end that would fill a page.
std::string shortName(std::string_view name);

std::string htmlIdentifier(const boost::uuids::uuid& id);

#endif
