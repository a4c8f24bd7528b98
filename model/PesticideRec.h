#ifndef QENXML_MODEL_PESTICIDEREC_H
#define QENXML_MODEL_PESTICIDEREC_H

#include <string>
#include <vector>

#include "PesticideByAmount.h"
#include "PesticideByPercent.h"
#include "QenExport.h"
#include "QenRecData.h"

/// Product data of a pesticide mix: its name, its unit and its product lines.
///
/// States: an object of the full constructor is of the kind RecTypePesticide; one of the default
/// constructor is of the kind RecTypeNone and stays so, whatever the setters fill in, so that a rec
/// that holds it loses it when the rec is copied. All getters return copies.
///
/// Reading a package never yields one; QenXmlParser::parsePesticideRecDataNode() called directly
/// does, with both lists empty.
class QENXML_EXPORT PesticideRec : public QenRecData {
public:
    /// An empty mix of the kind RecTypeNone: nil recId, no lines, empty texts, unit code -1.
    PesticideRec();

    /// A mix of the kind RecTypePesticide.
    ///
    /// @param recId               identifier of the rec that the data belongs to
    /// @param pesticidesByPercent lines given as a percentage of the mix
    /// @param pesticidesByAmount  lines given as an amount
    /// @param pesticideMixName    name of the mix
    /// @param uomId               code of the unit of measure
    /// @param uom                 text of the unit of measure
    PesticideRec(const boost::uuids::uuid& recId,
                 std::vector<PesticideByPercent> pesticidesByPercent,
                 std::vector<PesticideByAmount> pesticidesByAmount,
                 const std::string& pesticideMixName, const int& uomId, const std::string& uom);

    /// Copies of the lines given as a percentage, in the order in which they were added.
    std::vector<PesticideByPercent> pesticidesByPercent();

    /// Copies of the lines given as an amount, in the order in which they were added.
    std::vector<PesticideByAmount> pesticidesByAmount();

    std::string pesticideMixName(); ///< Name of the mix.
    int uomId();                    ///< Code of the unit of measure; -1 when none was given.
    std::string uom();              ///< Text of the unit of measure.

    void setPesticideMixName(const std::string& pesticideMixName); ///< Replaces the name.
    void setUomId(const int& uomId);                               ///< Replaces the unit's code.
    void setUom(const std::string& uom);                           ///< Replaces the unit's text.

    /// Appends a copy of @p pesticide, without looking for a line like it. When memory runs out,
    /// nothing has changed; likewise below.
    void addPesticideByPercent(const PesticideByPercent& pesticide);

    /// Appends a copy of @p pesticide, without looking for a line like it.
    void addPesticideByAmount(const PesticideByAmount& pesticide);

private:
    std::vector<PesticideByPercent> pesticidesByPercent_;
    std::vector<PesticideByAmount> pesticidesByAmount_;
    std::string pesticideMixName_;
    int uomId_;
    std::string uom_;
};

#endif
