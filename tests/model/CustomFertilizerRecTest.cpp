#include "model/CustomFertilizerRec.h"

#include <gtest/gtest.h>

#include "tests/support/Property.h"
#include "tests/support/Signatures.h"
#include "tests/support/Uuids.h"

namespace {

using boost::uuids::uuid;
using std::string;
using test::hasType;
using Rec = CustomFertilizerRec;

template <class Value>
using Getter = test::Getter<Rec, Value>;

template <class Value>
using Setter = test::Setter<Rec, const Value&>;

static_assert(std::is_base_of_v<QenRecData, Rec>);
static_assert(std::is_convertible_v<Rec*, QenRecData*>, "the base is public");
static_assert(std::has_virtual_destructor_v<Rec>);
static_assert(std::is_default_constructible_v<Rec>);
static_assert(std::is_constructible_v<Rec, const uuid&, const uuid&, const string&, const int&,
                                      const string&, const int&, const double&, const double&,
                                      const double&, const double&, const double&, const double&,
                                      const double&, const double&, const double&, const double&,
                                      const double&, const double&, const double&, const double&>);

static_assert(hasType<Getter<uuid>>(&Rec::productId), "a UUID, not a number");
static_assert(hasType<Getter<string>>(&Rec::productName));
static_assert(hasType<Getter<int>>(&Rec::uomId));
static_assert(hasType<Getter<string>>(&Rec::uom));
static_assert(hasType<Getter<int>>(&Rec::sFertT_ID));
static_assert(hasType<Getter<double>>(&Rec::spGravity));
static_assert(hasType<Getter<double>>(&Rec::pct_N));
static_assert(hasType<Getter<double>>(&Rec::pct_P));
static_assert(hasType<Getter<double>>(&Rec::pct_K));
static_assert(hasType<Getter<double>>(&Rec::pct_Ca));
static_assert(hasType<Getter<double>>(&Rec::pct_Mg));
static_assert(hasType<Getter<double>>(&Rec::pct_S));
static_assert(hasType<Getter<double>>(&Rec::pct_Fe));
static_assert(hasType<Getter<double>>(&Rec::pct_Mn));
static_assert(hasType<Getter<double>>(&Rec::pct_Zn));
static_assert(hasType<Getter<double>>(&Rec::pct_Cu));
static_assert(hasType<Getter<double>>(&Rec::pct_B));
static_assert(hasType<Getter<double>>(&Rec::pct_Mo));
static_assert(hasType<Getter<double>>(&Rec::pct_Cl));

static_assert(hasType<Setter<uuid>>(&Rec::setRecId));
static_assert(hasType<Setter<uuid>>(&Rec::setProductId));
static_assert(hasType<Setter<string>>(&Rec::setProductName));
static_assert(hasType<Setter<int>>(&Rec::setUomId));
static_assert(hasType<Setter<int>>(&Rec::setUom), "a number, not a text");
static_assert(hasType<Setter<int>>(&Rec::setSFert_ID), "spelt unlike its getter");
static_assert(hasType<Setter<double>>(&Rec::setSpGravity));
static_assert(hasType<Setter<double>>(&Rec::setPct_N));
static_assert(hasType<Setter<double>>(&Rec::setPct_P));
static_assert(hasType<Setter<double>>(&Rec::setPct_K));
static_assert(hasType<Setter<double>>(&Rec::setPct_Ca));
static_assert(hasType<Setter<double>>(&Rec::setPct_Mg));
static_assert(hasType<Setter<double>>(&Rec::setPct_S));
static_assert(hasType<Setter<double>>(&Rec::setPct_Fe));
static_assert(hasType<Setter<double>>(&Rec::setPct_Mn));
static_assert(hasType<Setter<double>>(&Rec::setPct_Zn));
static_assert(hasType<Setter<double>>(&Rec::setPct_Cu));
static_assert(hasType<Setter<double>>(&Rec::setPct_B));
static_assert(hasType<Setter<double>>(&Rec::setPct_Mo));
static_assert(hasType<Setter<double>>(&Rec::setPct_Cl));

/// Every value that a plain setter replaces: all but the text of the unit.
std::vector<test::Property<Rec>> properties() {
    using test::property;
    return {
        property<Rec>("recId", &Rec::recId, &Rec::setRecId, test::uuid(101)),
        property<Rec>("productId", &Rec::productId, &Rec::setProductId, test::uuid(102)),
        property<Rec>("productName", &Rec::productName, &Rec::setProductName, string("other")),
        property<Rec>("uomId", &Rec::uomId, &Rec::setUomId, 103),
        property<Rec>("sFertT_ID", &Rec::sFertT_ID, &Rec::setSFert_ID, 104),
        property<Rec>("spGravity", &Rec::spGravity, &Rec::setSpGravity, 1.05),
        property<Rec>("pct_N", &Rec::pct_N, &Rec::setPct_N, 106.5),
        property<Rec>("pct_P", &Rec::pct_P, &Rec::setPct_P, 107.5),
        property<Rec>("pct_K", &Rec::pct_K, &Rec::setPct_K, 108.5),
        property<Rec>("pct_Ca", &Rec::pct_Ca, &Rec::setPct_Ca, 109.5),
        property<Rec>("pct_Mg", &Rec::pct_Mg, &Rec::setPct_Mg, 110.5),
        property<Rec>("pct_S", &Rec::pct_S, &Rec::setPct_S, 111.5),
        property<Rec>("pct_Fe", &Rec::pct_Fe, &Rec::setPct_Fe, 112.5),
        property<Rec>("pct_Mn", &Rec::pct_Mn, &Rec::setPct_Mn, 113.5),
        property<Rec>("pct_Zn", &Rec::pct_Zn, &Rec::setPct_Zn, 114.5),
        property<Rec>("pct_Cu", &Rec::pct_Cu, &Rec::setPct_Cu, 115.5),
        property<Rec>("pct_B", &Rec::pct_B, &Rec::setPct_B, 116.5),
        property<Rec>("pct_Mo", &Rec::pct_Mo, &Rec::setPct_Mo, 117.5),
        property<Rec>("pct_Cl", &Rec::pct_Cl, &Rec::setPct_Cl, -118.5),
    };
}

Rec blend() {
    return Rec(test::uuid(1), test::uuid(2), "blend", 3, "unit", 4, 5.5, 6.5, 7.5, 8.5, 9.5, 10.5,
               11.5, 12.5, 13.5, 14.5, 15.5, 16.5, 17.5, 18.5);
}

} // namespace

TEST(CustomFertilizerRec, IsEmptyAndOfNoKindByDefault) {
    CustomFertilizerRec data;
    EXPECT_EQ(data.recType(), RecTypeNone);
    EXPECT_EQ(data.recId(), uuid{});
    EXPECT_EQ(data.productId(), uuid{});
    EXPECT_EQ(data.productName(), "");
    EXPECT_EQ(data.uomId(), -1);
    EXPECT_EQ(data.uom(), "");
    EXPECT_EQ(data.sFertT_ID(), -1);
    EXPECT_EQ(data.spGravity(), 0.0);
    EXPECT_EQ(data.pct_N(), 0.0);
    EXPECT_EQ(data.pct_P(), 0.0);
    EXPECT_EQ(data.pct_K(), 0.0);
    EXPECT_EQ(data.pct_Ca(), 0.0);
    EXPECT_EQ(data.pct_Mg(), 0.0);
    EXPECT_EQ(data.pct_S(), 0.0);
    EXPECT_EQ(data.pct_Fe(), 0.0);
    EXPECT_EQ(data.pct_Mn(), 0.0);
    EXPECT_EQ(data.pct_Zn(), 0.0);
    EXPECT_EQ(data.pct_Cu(), 0.0);
    EXPECT_EQ(data.pct_B(), 0.0);
    EXPECT_EQ(data.pct_Mo(), 0.0);
    EXPECT_EQ(data.pct_Cl(), 0.0);
}

TEST(CustomFertilizerRec, ReturnsEveryValueThatItWasBuiltWith) {
    CustomFertilizerRec data = blend();
    EXPECT_EQ(data.recId(), test::uuid(1));
    EXPECT_EQ(data.productId(), test::uuid(2));
    EXPECT_EQ(data.productName(), "blend");
    EXPECT_EQ(data.uomId(), 3);
    EXPECT_EQ(data.uom(), "unit");
    EXPECT_EQ(data.sFertT_ID(), 4);
    EXPECT_EQ(data.spGravity(), 5.5);
    EXPECT_EQ(data.pct_N(), 6.5);
    EXPECT_EQ(data.pct_P(), 7.5);
    EXPECT_EQ(data.pct_K(), 8.5);
    EXPECT_EQ(data.pct_Ca(), 9.5);
    EXPECT_EQ(data.pct_Mg(), 10.5);
    EXPECT_EQ(data.pct_S(), 11.5);
    EXPECT_EQ(data.pct_Fe(), 12.5);
    EXPECT_EQ(data.pct_Mn(), 13.5);
    EXPECT_EQ(data.pct_Zn(), 14.5);
    EXPECT_EQ(data.pct_Cu(), 15.5);
    EXPECT_EQ(data.pct_B(), 16.5);
    EXPECT_EQ(data.pct_Mo(), 17.5);
    EXPECT_EQ(data.pct_Cl(), 18.5);
}

TEST(CustomFertilizerRec, IsOfTheKindCustomFertilizerWhenBuiltWhole) {
    EXPECT_EQ(blend().recType(), RecTypeCustomFertilizer);
}

TEST(CustomFertilizerRec, EachSetterReplacesItsOwnValueAndNoOther) {
    for (const test::Property<Rec>& property : properties()) {
        SCOPED_TRACE(property.name);
        CustomFertilizerRec original = blend();
        CustomFertilizerRec data = blend();
        property.set(data);
        EXPECT_EQ(values(properties(), data), valuesWith(property, properties(), original));
        EXPECT_EQ(data.uom(), "unit");
    }
}

TEST(CustomFertilizerRec, SettersDoNotChangeTheKind) {
    CustomFertilizerRec empty;
    CustomFertilizerRec whole = blend();
    for (const test::Property<Rec>& property : properties()) {
        property.set(empty);
        property.set(whole);
    }
    empty.setUom(65);
    whole.setUom(65);
    EXPECT_EQ(empty.recType(), RecTypeNone);
    EXPECT_EQ(whole.recType(), RecTypeCustomFertilizer);
}

TEST(CustomFertilizerRec, SetUomMakesOneCharacterOfANumber) {
    CustomFertilizerRec data = blend();
    data.setUom(65);
    EXPECT_EQ(data.uom(), "A");
}

TEST(CustomFertilizerRec, SetUomOnlyLooksAtTheLowEightBits) {
    CustomFertilizerRec data;
    data.setUom(321);
    EXPECT_EQ(data.uom(), "A");
    data.setUom(-1);
    EXPECT_EQ(data.uom(), "\xff");
    data.setUom(-191); // 0x...41
    EXPECT_EQ(data.uom(), "A");
    data.setUom(200);
    EXPECT_EQ(data.uom(), "\xc8");
}

TEST(CustomFertilizerRec, SetUomOfZeroMakesOneNulCharacter) {
    CustomFertilizerRec data = blend();
    data.setUom(0);
    EXPECT_EQ(data.uom(), string(1, '\0'));
}

TEST(CustomFertilizerRec, SetUomReplacesNothingElse) {
    CustomFertilizerRec original = blend();
    CustomFertilizerRec data = blend();
    data.setUom(66);
    EXPECT_EQ(values(properties(), data), values(properties(), original));
}
