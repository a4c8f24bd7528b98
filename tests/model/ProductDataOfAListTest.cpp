/// @file
/// What becomes of the product data of recs when the list that holds them changes.

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "model/PlantingRec.h"
#include "model/QenField.h"
#include "tests/support/Uuids.h"

namespace {

using Numbers = std::vector<unsigned>;

/// Product data that notes its number when it is destroyed. Copies of recs do not copy that.
class NotedData : public PlantingRec {
public:
    NotedData(unsigned number, Numbers& destroyed)
        : PlantingRec(test::uuid(number), 1, "crop", 2, "company", 3, "variety", 4, "seeds"),
          number_(number),
          destroyed_(destroyed) {}
    NotedData(const NotedData&) = delete;
    NotedData& operator=(const NotedData&) = delete;
    ~NotedData() override { destroyed_.push_back(number_); }

private:
    unsigned number_;
    Numbers& destroyed_;
};

/// A field with the recs 3, 1 and 2, whose list has room for more.
class ProductDataOfAList : public testing::Test {
protected:
    ProductDataOfAList() {
        recs_.reserve(10);
        for (const unsigned number : {3U, 1U, 2U}) {
            data_[number] = new NotedData(number, destroyed_);
            recs_.emplace_back().setId(test::uuid(number));
            recs_.back().setRecData(data_[number]);
        }
    }

    /// What a caller has to do with the data that is left to it.
    void release(const Numbers& numbers) {
        for (const unsigned number : numbers)
            delete data_[number];
    }

    Numbers ids() {
        Numbers result;
        for (QenRec& rec : recs_)
            result.push_back(rec.id().begin()[15]);
        return result;
    }

    Numbers destroyed_;
    std::array<NotedData*, 4> data_{};
    QenField field_;
    std::vector<QenRec>& recs_ = field_.recs();
};

} // namespace

TEST_F(ProductDataOfAList, IsLeftToTheCallerByErasing) {
    recs_.erase(recs_.begin()); // 1 is assigned to 3, 2 to 1, and the last rec is destroyed
    EXPECT_EQ(ids(), (Numbers{1, 2}));
    EXPECT_EQ(destroyed_, Numbers{2});
    release({1, 3});
}

TEST_F(ProductDataOfAList, IsLeftToTheCallerBySwappingRecs) { // as sorting does
    std::swap(recs_[0], recs_[1]);
    EXPECT_EQ(ids(), (Numbers{1, 3, 2}));
    EXPECT_EQ(destroyed_, Numbers{});
    release({1, 3});
}

TEST_F(ProductDataOfAList, IsLeftToTheCallerByInsertingBeforeIt) {
    recs_.insert(recs_.begin(), QenRec());
    EXPECT_EQ(ids(), (Numbers{0, 3, 1, 2}));
    EXPECT_EQ(destroyed_, Numbers{});
    release({1, 2, 3});
}

TEST_F(ProductDataOfAList, IsLeftToTheCallerByAssigningAListToIt) {
    const std::vector<QenRec> other(2);
    recs_ = other; // assigned to 3 and 1; the last rec is destroyed
    EXPECT_EQ(ids(), (Numbers{0, 0}));
    EXPECT_EQ(destroyed_, Numbers{2});
    release({1, 3});
}

TEST_F(ProductDataOfAList, IsDestroyedWithTheRecsThatLeaveTheList) {
    recs_.pop_back();
    EXPECT_EQ(destroyed_, Numbers{2});
    std::vector<QenRec>().swap(recs_);
    std::sort(destroyed_.begin(), destroyed_.end());
    EXPECT_EQ(destroyed_, (Numbers{1, 2, 3}));
}
