#ifndef QENXML_PARSER_QENXMLPARSER_H
#define QENXML_PARSER_QENXMLPARSER_H

#include <string>
#include <vector>

#include <boost/uuid/uuid.hpp>
#include <pugixml.hpp>

#include "../model/CommercialFertilizerRec.h"
#include "../model/CustomFertilizerRec.h"
#include "../model/PesticideRec.h"
#include "../model/PlantingRec.h"
#include "../model/QenExport.h"
#include "../model/QenFarm.h"
#include "../model/QenField.h"
#include "../model/QenGrower.h"
#include "../model/QenRec.h"
#include "../model/QenRecData.h"
#include "TagNames.h"

/// @cond
#if defined(PUGIXML_WCHAR_MODE)
#error "This program is compiled with PUGIXML_WCHAR_MODE; libqenxml, with texts in UTF-8, never is"
#elif defined(PUGIXML_COMPACT)
#define QENXML_DOCUMENTS this_program_is_compiled_with_PUGIXML_COMPACT_and_its_libqenxml_without
#else
#define QENXML_DOCUMENTS this_program_is_compiled_without_PUGIXML_COMPACT_and_its_libqenxml_with
#endif
QENXML_REQUIRE(QENXML_DOCUMENTS)
/// @endcond

namespace qenxml { // not for hosts
class PackageReader;
}

/// Reads package files into growers.
///
/// A host constructs one parser, calls parseFile() once per package file and then getGrowers().
///
/// States: after construction there are no growers. Each parseFile() appends the growers of its
/// file, also when it fails: those that it read completely before. Growers never go away and are
/// never merged, not even those of a file that is read twice: QenGrower::merge() combines them, and
/// a new parser starts afresh. The document of the last file stays in memory until the next one is
/// read.
///
/// Errors: what is broken in a package is an exception, raised where it occurs and never caught by
/// the library. A mandatory identifier that is absent, empty or malformed is std::runtime_error
/// with the text "invalid uuid string", which can be caught as boost::exception too. Mandatory are
/// the attributes GrowerID, FarmID, FieldID and RecID; the elements FieldGeometryID, FieldGeometry
/// and RecGeometry; OpID, where there is an Operation; and ProductID, where a CustomFertilizer is
/// complete. MgmtZoneID may be absent or empty, but not malformed. std::bad_alloc comes out when
/// memory runs out. Absent names, dates and numbers are no errors: they read as empty texts and
/// zeros.
///
/// The element readers read one element each, whatever its name, and may be called by a host that
/// has a document of its own. They take the identifiers of the enclosing records, and use nothing
/// of the parser but its table of names and the UUID of the package file, which parseRecNode() puts
/// into every rec: that of the last path from which parseFile() took one, whether or not the file
/// could be loaded, and nil before. An empty node reads like an element without attributes and
/// children.
///
/// Lists are read from their first item to the last node of the parent: every node behind the first
/// item counts as one more, whatever its name, and mostly fails for lack of an identifier. Of
/// several farms of a grower, fields of a farm or recs of a field with one identifier, the last one
/// takes the place of the first.
///
/// A text is the first piece of text of its element, up to a child element, a comment or the like,
/// and is not trimmed; plain white space alone reads as an empty text. Line ends become line feeds,
/// and character references and the five entities of XML are resolved. Numbers are converted by the
/// rules of pugixml, without an error and alike in every locale: a text that is no number is 0.
///
/// Threads: one parser is used by one thread at a time; separate parsers share nothing.
///
/// A parser cannot be copied or moved.
class QENXML_EXPORT QenXmlParser {
public:
    /// A parser without growers.
    /// @throws std::bad_alloc
    QenXmlParser();

    QenXmlParser(const QenXmlParser&) = delete;
    QenXmlParser& operator=(const QenXmlParser&) = delete;

    /// Releases the growers of the parser and the document of the last file; growers that
    /// getGrowers() gave out live on.
    ~QenXmlParser();

    /// Reads a package file and appends its growers, in document order.
    ///
    /// The UUID of the package is taken from the path: the 36 bytes before the last four,
    /// whatever the last four are ("….xml"). This comes first, so that a path without a UUID is an
    /// exception even when the file is fine.
    ///
    /// The file has to be a regular one: opening a pipe waits until somebody writes into it.
    ///
    /// @param path path of the file; at least 40 bytes
    /// @return true when the file was read, even if it holds no grower; false when it cannot be
    ///         loaded as XML, for lack of memory included, or has no root element "RecPackage".
    ///         Much that is not well-formed is loaded all the same.
    /// @throws std::out_of_range  the path is shorter than 40 bytes
    /// @throws std::runtime_error "invalid uuid string": the path carries no UUID, or an identifier
    ///                            in the package is absent, empty or malformed. The growers before
    ///                            the failing one stay; it and the rest of the file are not read.
    bool parseFile(std::string path);

    /// A copy of all growers read so far, in the order in which they were read, with everything
    /// beneath them. It belongs to the caller and outlives the parser. Call it once after the files
    /// are read, not per access. The parser keeps its own list unchanged.
    std::vector<QenGrower> getGrowers();

    /// Reads a Grower element with its farms. The parser does not keep the result.
    /// @param node the element
    /// @return the grower; its name is empty when the element has none
    /// @throws std::runtime_error "invalid uuid string"
    QenGrower parseGrowerNode(pugi::xml_node node);

    /// Reads a Farm element with its fields.
    /// @param growerId identifier of the enclosing grower
    /// @param node     the element
    /// @return the farm; its name is empty when the element has none
    /// @throws std::runtime_error "invalid uuid string"
    QenFarm parseFarmNode(boost::uuids::uuid growerId, pugi::xml_node node);

    /// Reads a Field element with its geometry and recs.
    /// @param growerId identifier of the enclosing grower
    /// @param farmId   identifier of the enclosing farm
    /// @param node     the element
    /// @return the field with exactly one geometry; name and date are empty and the centroid is
    ///         (0, 0, 0) where the element has none
    /// @throws std::runtime_error "invalid uuid string"
    QenField parseFieldNode(boost::uuids::uuid growerId, boost::uuids::uuid farmId,
                            pugi::xml_node node);

    /// Reads a Rec element with its product data.
    /// @param fieldId         identifier of the enclosing field
    /// @param fieldGeometryId identifier of that field's geometry
    /// @param node            the element
    /// @return the rec, which owns its product data. Without an operation, or with one that has the
    ///         nil UUID, operation and its name are not set; without a season, or with a negative
    ///         number, seasonId() is -1 and its name empty. Absent rates, total, area and their
    ///         codes are 0. isUsed() is false.
    /// @throws std::runtime_error "invalid uuid string"
    QenRec parseRecNode(boost::uuids::uuid fieldId, boost::uuids::uuid fieldGeometryId,
                        pugi::xml_node node);

    /// Reads a RecData element: its first child node selects the kind of product. Anything but
    /// "CommercialFertilizer", "CustomFertilizer" and "Planting" yields null, "Pesticide" included.
    /// @param recId identifier of the rec
    /// @param node  the element; may be empty
    /// @return product data that the caller owns and deletes or gives to a rec, or null
    /// @throws std::runtime_error "invalid uuid string"
    QenRecData* parseRecDataNode(boost::uuids::uuid recId, pugi::xml_node node);

    /// Reads a CommercialFertilizer element.
    /// @param recId identifier of the rec
    /// @param node  the element; may be empty
    /// @return product data that the caller owns and deletes or gives to a rec, or null when one of
    ///         the children is missing. Empty children are there: they read as 0 or an empty text.
    CommercialFertilizerRec* parseCommercialFertilizerRecDataNode(boost::uuids::uuid recId,
                                                                  pugi::xml_node node);

    /// Reads a CustomFertilizer element.
    /// @param recId identifier of the rec
    /// @param node  the element; may be empty
    /// @return product data that the caller owns and deletes or gives to a rec, or null when one of
    ///         the children is missing. Empty children are there: they read as 0 or an empty text.
    /// @throws std::runtime_error "invalid uuid string": all children are there, but "ProductID" is
    ///                            no UUID
    CustomFertilizerRec* parseCustomFertilizerRecDataNode(boost::uuids::uuid recId,
                                                          pugi::xml_node node);

    /// Reads a Planting element.
    /// @param recId identifier of the rec
    /// @param node  the element; may be empty
    /// @return product data that the caller owns and deletes or gives to a rec, or null when one of
    ///         the children is missing. Empty children are there: they read as 0 or an empty text.
    PlantingRec* parsePlantingRecDataNode(boost::uuids::uuid recId, pugi::xml_node node);

    /// Reads the name and unit of a Pesticide element; its product lines are not read. Reading a
    /// package never comes here: only a direct call does.
    /// @param recId identifier of the rec
    /// @param node  the element; may be empty
    /// @return product data that the caller owns and deletes or gives to a rec, or null when one of
    ///         the children is missing. Empty children are there: they read as 0 or an empty text.
    PesticideRec* parsePesticideRecDataNode(boost::uuids::uuid recId, pugi::xml_node node);

private:
    /// The readers of the elements, for @p node and all beneath it.
    QENXML_LOCAL qenxml::PackageReader reader(pugi::xml_node node) const;

    std::vector<QenGrower> growers_;
    pugi::xml_document document_;
    const qenxml::TagNames names_{};
    boost::uuids::uuid xmlFileName_{};
};

#endif
