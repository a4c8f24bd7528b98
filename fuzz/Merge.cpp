// Builds two trees from the input, merges them and compares with the plain model, at all levels.

#include <cstdint>
#include <string>

#include "fuzz/Require.h"
#include "tests/support/MergeModel.h"

namespace {

/// Takes the bytes of the input one by one; zeros follow its end.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : data_(data), end_(data + size) {}

    unsigned below(unsigned limit) { return data_ == end_ ? 0 : *data_++ % limit; }

private:
    const std::uint8_t* data_;
    const std::uint8_t* end_;
};

/// One of a few identifiers, so that trees overlap and siblings have the same one.
boost::uuids::uuid identifier(Bytes& bytes) {
    boost::uuids::uuid id{};
    *id.begin() = static_cast<unsigned char>(bytes.below(4));
    return id;
}

std::string name(Bytes& bytes) {
    return std::string(1, static_cast<char>('a' + bytes.below(26)));
}

plain::Field field(Bytes& bytes) {
    plain::Field field;
    field.id = identifier(bytes);
    field.growerId = identifier(bytes);
    field.farmId = identifier(bytes);
    field.name = name(bytes);
    for (unsigned i = bytes.below(4); i > 0; --i) {
        plain::Geometry geometry;
        geometry.id = identifier(bytes);
        geometry.date = name(bytes);
        field.geometries.push_back(geometry);
    }
    for (unsigned i = bytes.below(4); i > 0; --i) {
        plain::Rec rec;
        rec.id = identifier(bytes);
        rec.name = name(bytes);
        if (bytes.below(2) == 1)
            rec.product.emplace<plain::Planting>().cropId = static_cast<int>(bytes.below(256));
        field.recs.push_back(rec);
    }
    return field;
}

plain::Farm farm(Bytes& bytes) {
    plain::Farm farm;
    farm.id = identifier(bytes);
    farm.growerId = identifier(bytes);
    farm.name = name(bytes);
    for (unsigned i = bytes.below(4); i > 0; --i)
        farm.fields.push_back(field(bytes));
    return farm;
}

plain::Grower grower(Bytes& bytes) {
    plain::Grower grower;
    grower.id = identifier(bytes);
    grower.name = name(bytes);
    for (unsigned i = bytes.below(4); i > 0; --i)
        grower.farms.push_back(farm(bytes));
    return grower;
}

template <class Record>
void compare(const Record& record, const Record& other) {
    auto merged = plain::toLibrary(record);
    auto argument = plain::toLibrary(other);
    merged.merge(argument);
    require(plain::fromLibrary(merged) == plain::merged(record, other),
            "the merged tree is that of the model");
    require(plain::fromLibrary(argument) == other, "the argument is as before");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes bytes(data, size);
    switch (bytes.below(3)) {
    case 0: {
        const plain::Grower record = grower(bytes);
        compare(record, grower(bytes));
        break;
    }
    case 1: {
        const plain::Farm record = farm(bytes);
        compare(record, farm(bytes));
        break;
    }
    default: {
        const plain::Field record = field(bytes);
        compare(record, field(bytes));
        break;
    }
    }
    return 0;
}
