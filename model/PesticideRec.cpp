#include "model/PesticideRec.h"

#include <utility>

PesticideRec::PesticideRec() : uomId_(-1) {}

PesticideRec::PesticideRec(const boost::uuids::uuid& recId,
                           std::vector<PesticideByPercent> pesticidesByPercent,
                           std::vector<PesticideByAmount> pesticidesByAmount,
                           const std::string& pesticideMixName, const int& uomId,
                           const std::string& uom)
    : QenRecData(recId, RecTypePesticide),
      pesticidesByPercent_(std::move(pesticidesByPercent)),
      pesticidesByAmount_(std::move(pesticidesByAmount)),
      pesticideMixName_(pesticideMixName),
      uomId_(uomId),
      uom_(uom) {}

std::vector<PesticideByPercent> PesticideRec::pesticidesByPercent() {
    return pesticidesByPercent_;
}

std::vector<PesticideByAmount> PesticideRec::pesticidesByAmount() {
    return pesticidesByAmount_;
}

std::string PesticideRec::pesticideMixName() {
    return pesticideMixName_;
}

int PesticideRec::uomId() {
    return uomId_;
}

std::string PesticideRec::uom() {
    return uom_;
}

void PesticideRec::setPesticideMixName(const std::string& pesticideMixName) {
    pesticideMixName_ = pesticideMixName;
}

void PesticideRec::setUomId(const int& uomId) {
    uomId_ = uomId;
}

void PesticideRec::setUom(const std::string& uom) {
    uom_ = uom;
}

void PesticideRec::addPesticideByPercent(const PesticideByPercent& pesticide) {
    pesticidesByPercent_.push_back(pesticide);
}

void PesticideRec::addPesticideByAmount(const PesticideByAmount& pesticide) {
    pesticidesByAmount_.push_back(pesticide);
}
