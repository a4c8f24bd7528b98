#ifndef QENXML_MODEL_CUSTOMFERTILIZERREC_H
#define QENXML_MODEL_CUSTOMFERTILIZERREC_H

#include <string>

#include "QenExport.h"
#include "QenRecData.h"

/// Product data of a fertilizer blend, described by its nutrients in percent.
///
/// States: an object of the full constructor is of the kind RecTypeCustomFertilizer; one of the
/// default constructor is of the kind RecTypeNone and stays so, whatever the setters fill in, so
/// that a rec that holds it loses it when the rec is copied. All getters return copies.
///
/// Its product identifier is a UUID, unlike that of a CommercialFertilizerRec. Percentages and the
/// specific gravity are kept as given, beyond 100 or 0 as well.
class QENXML_EXPORT CustomFertilizerRec : public QenRecData {
public:
    /// An empty blend of the kind RecTypeNone: nil identifiers, empty texts, codes -1, numbers 0.0.
    CustomFertilizerRec();

    /// A blend of the kind RecTypeCustomFertilizer.
    ///
    /// @param recId       identifier of the rec that the data belongs to
    /// @param productId   identifier of the blend
    /// @param productName name of the blend
    /// @param uomId       code of the unit of measure
    /// @param uom         text of the unit of measure
    /// @param sFertT_ID   code of the blend's "SFertT_ID"
    /// @param spGravity   specific gravity
    /// @param pct_N       nitrogen, percent
    /// @param pct_P       phosphorus, percent
    /// @param pct_K       potassium, percent
    /// @param pct_Ca      calcium, percent
    /// @param pct_Mg      magnesium, percent
    /// @param pct_S       sulphur, percent
    /// @param pct_Fe      iron, percent
    /// @param pct_Mn      manganese, percent
    /// @param pct_Zn      zinc, percent
    /// @param pct_Cu      copper, percent
    /// @param pct_B       boron, percent
    /// @param pct_Mo      molybdenum, percent
    /// @param pct_Cl      chlorine, percent
    CustomFertilizerRec(const boost::uuids::uuid& recId, const boost::uuids::uuid& productId,
                        const std::string& productName, const int& uomId, const std::string& uom,
                        const int& sFertT_ID, const double& spGravity, const double& pct_N,
                        const double& pct_P, const double& pct_K, const double& pct_Ca,
                        const double& pct_Mg, const double& pct_S, const double& pct_Fe,
                        const double& pct_Mn, const double& pct_Zn, const double& pct_Cu,
                        const double& pct_B, const double& pct_Mo, const double& pct_Cl);

    boost::uuids::uuid productId(); ///< Identifier of the blend; nil when none was given.
    std::string productName();      ///< Name of the blend.
    int uomId();                    ///< Code of the unit of measure; -1 when none was given.
    std::string uom();              ///< Text of the unit of measure.
    int sFertT_ID();                ///< Code of the package's "SFertT_ID"; -1 when none was given.
    double spGravity();             ///< Specific gravity: density relative to that of water.
    double pct_N();                 ///< Nitrogen, percent.
    double pct_P();                 ///< Phosphorus, percent.
    double pct_K();                 ///< Potassium, percent.
    double pct_Ca();                ///< Calcium, percent.
    double pct_Mg();                ///< Magnesium, percent.
    double pct_S();                 ///< Sulphur, percent.
    double pct_Fe();                ///< Iron, percent.
    double pct_Mn();                ///< Manganese, percent.
    double pct_Zn();                ///< Zinc, percent.
    double pct_Cu();                ///< Copper, percent.
    double pct_B();                 ///< Boron, percent.
    double pct_Mo();                ///< Molybdenum, percent.
    double pct_Cl();                ///< Chlorine, percent.

    void setRecId(const boost::uuids::uuid& recId);         ///< Replaces the rec's identifier.
    void setProductId(const boost::uuids::uuid& productId); ///< Replaces the blend's identifier.
    void setProductName(const std::string& productName);    ///< Replaces the blend's name.
    void setUomId(const int& uomId);                        ///< Replaces the unit's code.

    /// Replaces the unit's text by one character, the low 8 bits of @p uom: 65 gives "A", and 0 a
    /// text of length 1 that holds a NUL character. It takes a number, unlike
    /// PesticideRec::setUom(); a whole text is given to the full constructor.
    void setUom(const int& uom);

    void setSFert_ID(const int& sFertT_ID);     ///< Replaces sFertT_ID(); note the spelling.
    void setSpGravity(const double& spGravity); ///< Replaces the specific gravity.
    void setPct_N(const double& pct_N);         ///< Replaces the percentage of nitrogen.
    void setPct_P(const double& pct_P);         ///< Replaces the percentage of phosphorus.
    void setPct_K(const double& pct_K);         ///< Replaces the percentage of potassium.
    void setPct_Ca(const double& pct_Ca);       ///< Replaces the percentage of calcium.
    void setPct_Mg(const double& pct_Mg);       ///< Replaces the percentage of magnesium.
    void setPct_S(const double& pct_S);         ///< Replaces the percentage of sulphur.
    void setPct_Fe(const double& pct_Fe);       ///< Replaces the percentage of iron.
    void setPct_Mn(const double& pct_Mn);       ///< Replaces the percentage of manganese.
    void setPct_Zn(const double& pct_Zn);       ///< Replaces the percentage of zinc.
    void setPct_Cu(const double& pct_Cu);       ///< Replaces the percentage of copper.
    void setPct_B(const double& pct_B);         ///< Replaces the percentage of boron.
    void setPct_Mo(const double& pct_Mo);       ///< Replaces the percentage of molybdenum.
    void setPct_Cl(const double& pct_Cl);       ///< Replaces the percentage of chlorine.

private:
    boost::uuids::uuid productId_;
    std::string productName_;
    int uomId_;
    std::string uom_;
    int sFertT_ID_;
    double spGravity_;
    double pct_N_;
    double pct_P_;
    double pct_K_;
    double pct_Ca_;
    double pct_Mg_;
    double pct_S_;
    double pct_Fe_;
    double pct_Mn_;
    double pct_Zn_;
    double pct_Cu_;
    double pct_B_;
    double pct_Mo_;
    double pct_Cl_;
};

#endif
