#ifndef QENXML_MODEL_QENREC_H
#define QENXML_MODEL_QENREC_H

#include <string>
#include <vector>

#include <boost/uuid/uuid.hpp>

#include "OwnedRecData.h"
#include "QenExport.h"
#include "QenRecData.h"

namespace qenxml { // not for hosts

class PackageReader;

/// What a rec says of itself, before its product data.
struct RecDescription {
    boost::uuids::uuid fieldId{};
    boost::uuids::uuid fieldGeometryId{};
    std::string name;
    boost::uuids::uuid id{};
    boost::uuids::uuid recGeometry{};
    std::string creationDate;
    std::string editDate;
    std::string recDbfCol;
    std::string operationName;
    boost::uuids::uuid operationId{};
    std::string seasonName;
    int seasonId = -1;
    boost::uuids::uuid mgmtZoneId{};
};

/// The rates, the total and the area of a rec.
struct RecStatistics {
    double minimumRate = 0.0;
    double maximumRate = 0.0;
    double averageRate = 0.0;
    int rateUomId = -1;
    std::string rateUom;
    double total = 0.0;
    int totalUomId = -1;
    std::string totalUom;
    double area = 0.0;
    int areaUomId = -1;
    std::string areaUom;
};

} // namespace qenxml

/// One recommendation (prescription) of a field: what to apply, at which rates, in which zone and
/// season. It owns the product data that it prescribes.
///
/// States: created empty and filled through setters, or created whole by the full constructor;
/// with product data or (recData() null) without.
///
/// Copying is deep: the copy gets product data of its own, rebuilt as the variant that the kind
/// names (QenRecData::recType()). Product data whose kind is none of the four variants is dropped
/// in the copy, recData() is then null. There are no move operations: a moved rec is a copied rec.
///
/// Ownership: the destructor deletes the product data. Assignment and setRecData() overwrite the
/// pointer and do *not* delete the object that the rec held before: it then belongs to the caller,
/// who takes it (`recData()`) beforehand and deletes it. Operations of a list that assign its
/// elements, `std::vector::erase` for one, are such assignments.
///
/// The unit codes have no meaning to the library. They are -1 in a rec that was not read from a
/// package, and 0 in one that was read from a package that gives none.
///
/// Getters are non-const members and return copies, recData() apart. Nothing is validated, and no
/// operation throws anything but std::bad_alloc.
///
/// Threads: the getters change nothing; a rec that no thread changes may be read by several.
class QENXML_EXPORT QenRec {
public:
    /// An empty rec: nil identifiers, empty texts, numbers 0.0, season and unit codes -1, not used,
    /// no product data.
    QenRec();

    /// A rec with all values but editDate(), which is left empty. Note that the rate's unit comes
    /// as text before code, those of total and area as code before text.
    ///
    /// @param fieldId         field that the rec belongs to
    /// @param fieldGeometryId boundary of that field
    /// @param name            display name
    /// @param id              identity of the rec
    /// @param recGeometry     the rec's own geometry
    /// @param creationDate    creation date, as text
    /// @param recDbfCol       name of the DBF column
    /// @param operationName   name of the field operation
    /// @param operationId     identity of the field operation; nil for none
    /// @param seasonName      name of the season
    /// @param seasonId        number of the season; -1 for none
    /// @param mgmtZoneId      management zone; nil for none
    /// @param recData         product data or null; the rec owns it once it is constructed. When
    ///                        memory runs out while the arguments are copied, it is still the
    ///                        caller's.
    /// @param minimumRate     smallest rate, in the unit @p rateUom
    /// @param maximumRate     largest rate, in the unit @p rateUom
    /// @param averageRate     average rate, in the unit @p rateUom
    /// @param rateUom         text of the rates' unit
    /// @param rateUomId       code of the rates' unit
    /// @param total           total amount, in the unit @p totalUom
    /// @param totalUomId      code of the total's unit
    /// @param totalUom        text of the total's unit
    /// @param area            area, in the unit @p areaUom
    /// @param areaUomId       code of the area's unit
    /// @param areaUom         text of the area's unit
    /// @param isUsed          mark of the host application
    /// @param xmlFileName     UUID of the package file
    QenRec(boost::uuids::uuid fieldId, boost::uuids::uuid fieldGeometryId, std::string name,
           boost::uuids::uuid id, boost::uuids::uuid recGeometry, std::string creationDate,
           std::string recDbfCol, std::string operationName, boost::uuids::uuid operationId,
           std::string seasonName, int seasonId, boost::uuids::uuid mgmtZoneId, QenRecData* recData,
           double minimumRate, double maximumRate, double averageRate, std::string rateUom,
           int rateUomId, double total, int totalUomId, std::string totalUom, double area,
           int areaUomId, std::string areaUom, bool isUsed, boost::uuids::uuid xmlFileName);

    /// A deep copy of @p other, with product data of its own.
    QenRec(const QenRec& other);

    /// Makes this rec a deep copy of @p other; assignment to itself changes nothing.
    ///
    /// The product data that this rec held before is not deleted: it belongs to the caller.
    /// When memory runs out, std::bad_alloc comes out, this rec keeps its product data and its
    /// other values are the old or the new ones.
    QenRec& operator=(const QenRec& other);

    /// Deletes the product data.
    ~QenRec();

    /// True when the two id() are equal; nothing else is compared. There is no `operator!=`.
    bool operator==(const QenRec& other) const;

    boost::uuids::uuid fieldId();         ///< The field that the rec belongs to.
    boost::uuids::uuid fieldGeometryId(); ///< The field's boundary that the rec belongs to.
    std::string name();                   ///< Display name.
    boost::uuids::uuid id();              ///< Identity of the rec; all that equality looks at.
    boost::uuids::uuid recGeometry();     ///< The rec's own geometry.
    std::string creationDate();           ///< Creation date as text, never parsed.
    std::string editDate();               ///< Date of the last edit as text, never parsed.
    std::string recDbfCol();              ///< Name of the DBF column, never interpreted.
    std::string operationName();          ///< Name of the field operation.
    boost::uuids::uuid operationId(); ///< Identity of the field operation; nil when none is set.
    std::string seasonName();         ///< Name of the season.
    int seasonId();                   ///< Number of the season; -1 when none is set.
    boost::uuids::uuid mgmtZoneId();  ///< Management zone; nil when none is set.

    /// The product data, or null when the rec has none. The rec stays its owner: the pointer is
    /// valid until the rec is destroyed, and nobody else deletes it.
    QenRecData* recData();

    double minimumRate();   ///< Smallest rate, in rateUom().
    double maximumRate();   ///< Largest rate, in rateUom().
    double averageRate();   ///< Average rate, in rateUom().
    int rateUomId();        ///< Code of the rates' unit.
    std::string rateUom();  ///< Text of the rates' unit.
    double total();         ///< Total amount, in totalUom().
    int totalUomId();       ///< Code of the total's unit.
    std::string totalUom(); ///< Text of the total's unit.
    double area();          ///< Area, in areaUom().
    int areaUomId();        ///< Code of the area's unit.
    std::string areaUom();  ///< Text of the area's unit.
    /// A mark for the host application. Reading leaves it false; the library only copies it.
    bool isUsed();

    /// UUID of the package file that the rec was read from. No text, despite the name.
    boost::uuids::uuid xmlFileName();

    // Each setter replaces the value that the getter of the same name returns.

    void setFieldId(boost::uuids::uuid fieldId);                 ///< Sets fieldId().
    void setFieldGeometryId(boost::uuids::uuid fieldGeometryId); ///< Sets fieldGeometryId().
    void setName(std::string name);                              ///< Sets name().
    void setId(boost::uuids::uuid id);                           ///< Sets id().
    void setRecGeometry(boost::uuids::uuid recGeometry);         ///< Sets recGeometry().
    void setCreationDate(std::string creationDate);              ///< Sets creationDate().
    void setEditDate(std::string editDate);                      ///< Sets editDate().
    void setRecDbfCol(std::string recDbfCol);                    ///< Sets recDbfCol().
    void setOperationName(std::string operationName);            ///< Sets operationName().
    void setOperationId(boost::uuids::uuid operationId);         ///< Sets operationId().
    void setSeasonName(std::string seasonName);                  ///< Sets seasonName().
    void setSeasonId(int seasonId);                              ///< Sets seasonId().
    void setMgMtZoneId(boost::uuids::uuid mgmtZoneId); ///< Sets mgmtZoneId(); note the spelling.

    /// Takes ownership of @p recData, which was made with `new`; null for none. The object held
    /// before is not deleted: it belongs to the caller.
    void setRecData(QenRecData* recData);

    void setMinimumRate(double minimumRate);             ///< Sets minimumRate().
    void setMaximumRate(double maximumRate);             ///< Sets maximumRate().
    void setAverageRate(double averageRate);             ///< Sets averageRate().
    void setRateUomId(int rateUomId);                    ///< Sets rateUomId().
    void setRateUom(std::string rateUom);                ///< Sets rateUom().
    void setTotal(double total);                         ///< Sets total().
    void setTotalUomId(int totalUomId);                  ///< Sets totalUomId().
    void setTotalUom(std::string totalUom);              ///< Sets totalUom().
    void setArea(double area);                           ///< Sets area().
    void setAreaUomId(int areaUomId);                    ///< Sets areaUomId().
    void setAreaUom(std::string areaUom);                ///< Sets areaUom().
    void setIsUsed(bool isUsed);                         ///< Sets isUsed().
    void setXmlFileName(boost::uuids::uuid xmlFileName); ///< Sets xmlFileName().

private:
    // They take recs over, read const ones and fill new ones, without copying.
    friend class QenField;
    friend class qenxml::PackageReader;

    /// Appends an empty rec to @p recs, which it makes longer by hand, because a list that grows by
    /// itself copies every rec with its product data. When memory runs out, the list has not
    /// changed.
    QENXML_LOCAL static QenRec& appendEmpty(std::vector<QenRec>& recs);

    /// Takes the content of @p other over, where nobody will look at @p other again. Like copying,
    /// it drops product data of an unknown kind and leaves that which this rec held before alone.
    QENXML_LOCAL void take(QenRec& other) noexcept;

    qenxml::RecDescription description_;
    qenxml::OwnedRecData recData_;
    qenxml::RecStatistics statistics_;
    bool isUsed_ = false;
    boost::uuids::uuid xmlFileName_{};
};

#endif
