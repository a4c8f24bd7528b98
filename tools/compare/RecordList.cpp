#include "tools/compare/RecordList.h"

#include <utility>

#include "tools/records/RecordWalk.h"

boost::uuids::uuid RecordView::id() const {
    switch (owner) {
    case Owner::Grower:
        return context.grower->id();
    case Owner::Farm:
        return context.farm->id();
    case Owner::Field:
        return context.field->id();
    case Owner::Geometry:
    case Owner::Centroid:
        return context.geometry->geometryId();
    case Owner::Rec:
    case Owner::Product:
    case Owner::Package: // no record, so never of a view
        break;
    }
    return context.rec->id();
}

boost::uuids::uuid RecordView::parentId() const {
    switch (owner) {
    case Owner::Grower:
        return {};
    case Owner::Farm:
        return context.grower->id();
    case Owner::Field:
        return context.farm->id();
    default:
        return context.field->id();
    }
}

std::string RecordView::name() const {
    switch (owner) {
    case Owner::Grower:
        return context.grower->name();
    case Owner::Farm:
        return context.farm->name();
    case Owner::Field:
        return context.field->name();
    case Owner::Geometry:
    case Owner::Centroid:
        return context.geometry->geometryDate();
    case Owner::Rec:
    case Owner::Product:
    case Owner::Package: // no record, so never of a view
        break;
    }
    return context.rec->name();
}

RecordList::RecordList(PackageReading reading) : reading_(std::move(reading)) {
    forEachGrower(reading_.growers, reading_.gaps,
                  [this](QenGrower& grower, const GrowerGaps& gaps) {
                      OutputContext context;
                      context.grower = &grower;
                      records_.push_back({Owner::Grower, context});
                      for (QenFarm& farm : grower.farms()) {
                          context.farm = &farm;
                          context.field = nullptr; // that of the farm before
                          records_.push_back({Owner::Farm, context});
                          for (QenField& field : farm.fields()) {
                              context.field = &field;
                              records_.push_back({Owner::Field, context});
                              OutputContext inField = context;
                              for (QenFieldGeometry& geometry :
                                   geometries_.emplace_back(field.geometries())) {
                                  inField.geometry = &geometry;
                                  inField.centroid = geometry.centroid();
                                  inField.missing = gaps.ofGeometry(field, geometry.geometryId());
                                  records_.push_back({Owner::Geometry, inField});
                              }
                              inField.geometry = nullptr;
                              for (QenRec& rec : field.recs()) {
                                  inField.rec = &rec;
                                  inField.missing = gaps.ofRec(field, rec.id());
                                  records_.push_back({Owner::Rec, inField});
                              }
                          }
                      }
                  });
}
