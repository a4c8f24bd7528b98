#include "model/CustomFertilizerRec.h"

CustomFertilizerRec::CustomFertilizerRec()
    : productId_{},
      uomId_(-1),
      sFertT_ID_(-1),
      spGravity_(0.0),
      pct_N_(0.0),
      pct_P_(0.0),
      pct_K_(0.0),
      pct_Ca_(0.0),
      pct_Mg_(0.0),
      pct_S_(0.0),
      pct_Fe_(0.0),
      pct_Mn_(0.0),
      pct_Zn_(0.0),
      pct_Cu_(0.0),
      pct_B_(0.0),
      pct_Mo_(0.0),
      pct_Cl_(0.0) {}

CustomFertilizerRec::CustomFertilizerRec(
    const boost::uuids::uuid& recId, const boost::uuids::uuid& productId,
    const std::string& productName, const int& uomId, const std::string& uom, const int& sFertT_ID,
    const double& spGravity, const double& pct_N, const double& pct_P, const double& pct_K,
    const double& pct_Ca, const double& pct_Mg, const double& pct_S, const double& pct_Fe,
    const double& pct_Mn, const double& pct_Zn, const double& pct_Cu, const double& pct_B,
    const double& pct_Mo, const double& pct_Cl)
    : QenRecData(recId, RecTypeCustomFertilizer),
      productId_(productId),
      productName_(productName),
      uomId_(uomId),
      uom_(uom),
      sFertT_ID_(sFertT_ID),
      spGravity_(spGravity),
      pct_N_(pct_N),
      pct_P_(pct_P),
      pct_K_(pct_K),
      pct_Ca_(pct_Ca),
      pct_Mg_(pct_Mg),
      pct_S_(pct_S),
      pct_Fe_(pct_Fe),
      pct_Mn_(pct_Mn),
      pct_Zn_(pct_Zn),
      pct_Cu_(pct_Cu),
      pct_B_(pct_B),
      pct_Mo_(pct_Mo),
      pct_Cl_(pct_Cl) {}

boost::uuids::uuid CustomFertilizerRec::productId() {
    return productId_;
}

std::string CustomFertilizerRec::productName() {
    return productName_;
}

int CustomFertilizerRec::uomId() {
    return uomId_;
}

std::string CustomFertilizerRec::uom() {
    return uom_;
}

int CustomFertilizerRec::sFertT_ID() {
    return sFertT_ID_;
}

double CustomFertilizerRec::spGravity() {
    return spGravity_;
}

double CustomFertilizerRec::pct_N() {
    return pct_N_;
}

double CustomFertilizerRec::pct_P() {
    return pct_P_;
}

double CustomFertilizerRec::pct_K() {
    return pct_K_;
}

double CustomFertilizerRec::pct_Ca() {
    return pct_Ca_;
}

double CustomFertilizerRec::pct_Mg() {
    return pct_Mg_;
}

double CustomFertilizerRec::pct_S() {
    return pct_S_;
}

double CustomFertilizerRec::pct_Fe() {
    return pct_Fe_;
}

double CustomFertilizerRec::pct_Mn() {
    return pct_Mn_;
}

double CustomFertilizerRec::pct_Zn() {
    return pct_Zn_;
}

double CustomFertilizerRec::pct_Cu() {
    return pct_Cu_;
}

double CustomFertilizerRec::pct_B() {
    return pct_B_;
}

double CustomFertilizerRec::pct_Mo() {
    return pct_Mo_;
}

double CustomFertilizerRec::pct_Cl() {
    return pct_Cl_;
}

void CustomFertilizerRec::setRecId(const boost::uuids::uuid& recId) {
    recId_ = recId;
}

void CustomFertilizerRec::setProductId(const boost::uuids::uuid& productId) {
    productId_ = productId;
}

void CustomFertilizerRec::setProductName(const std::string& productName) {
    productName_ = productName;
}

void CustomFertilizerRec::setUomId(const int& uomId) {
    uomId_ = uomId;
}

void CustomFertilizerRec::setUom(const int& uom) {
    // By way of unsigned char, so that the low 8 bits count for negative numbers too.
    uom_.assign(1, static_cast<char>(static_cast<unsigned char>(uom)));
}

void CustomFertilizerRec::setSFert_ID(const int& sFertT_ID) {
    sFertT_ID_ = sFertT_ID;
}

void CustomFertilizerRec::setSpGravity(const double& spGravity) {
    spGravity_ = spGravity;
}

void CustomFertilizerRec::setPct_N(const double& pct_N) {
    pct_N_ = pct_N;
}

void CustomFertilizerRec::setPct_P(const double& pct_P) {
    pct_P_ = pct_P;
}

void CustomFertilizerRec::setPct_K(const double& pct_K) {
    pct_K_ = pct_K;
}

void CustomFertilizerRec::setPct_Ca(const double& pct_Ca) {
    pct_Ca_ = pct_Ca;
}

void CustomFertilizerRec::setPct_Mg(const double& pct_Mg) {
    pct_Mg_ = pct_Mg;
}

void CustomFertilizerRec::setPct_S(const double& pct_S) {
    pct_S_ = pct_S;
}

void CustomFertilizerRec::setPct_Fe(const double& pct_Fe) {
    pct_Fe_ = pct_Fe;
}

void CustomFertilizerRec::setPct_Mn(const double& pct_Mn) {
    pct_Mn_ = pct_Mn;
}

void CustomFertilizerRec::setPct_Zn(const double& pct_Zn) {
    pct_Zn_ = pct_Zn;
}

void CustomFertilizerRec::setPct_Cu(const double& pct_Cu) {
    pct_Cu_ = pct_Cu;
}

void CustomFertilizerRec::setPct_B(const double& pct_B) {
    pct_B_ = pct_B;
}

void CustomFertilizerRec::setPct_Mo(const double& pct_Mo) {
    pct_Mo_ = pct_Mo;
}

void CustomFertilizerRec::setPct_Cl(const double& pct_Cl) {
    pct_Cl_ = pct_Cl;
}
