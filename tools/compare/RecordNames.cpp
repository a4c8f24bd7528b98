#include "tools/compare/RecordNames.h"

#include <array>

#include "tools/text/Escape.h"

const char* kindWord(Owner owner) {
    constexpr std::array words = {"package",  "grower",   "farm", "field",
                                  "boundary", "boundary", "rec",  "rec"};
    return words.at(static_cast<std::size_t>(owner));
}

std::vector<RecordName> namesOf(const RecordView& record) {
    const OutputContext& around = record.context;
    std::vector<RecordName> names;
    const auto add = [&](Owner owner) {
        const RecordView view{owner, around};
        names.push_back({kindWord(owner), escape(view.name()), view.id()});
    };
    add(Owner::Grower);
    if (around.farm != nullptr)
        add(Owner::Farm);
    if (around.field != nullptr)
        add(Owner::Field);
    if (record.owner == Owner::Geometry || record.owner == Owner::Rec)
        add(record.owner);
    return names;
}
