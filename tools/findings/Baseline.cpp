#include "tools/findings/Baseline.h"

#include <array>
#include <charconv>
#include <istream>
#include <stdexcept>
#include <string_view>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "tools/files/FileStream.h"
#include "tools/findings/Fingerprint.h"
#include "tools/text/Escape.h"

namespace {

/// Takes the fingerprints out of a log in SARIF while it is read: an object of the JSON library
/// would need much memory, some of it to go away. Whatever else the file holds is passed over.
class FingerprintReader : public nlohmann::json_sax<nlohmann::json> {
public:
    explicit FingerprintReader(std::map<std::uint64_t, std::size_t>& counts) : counts_(counts) {}

    /// Whether the file is a log whose results all have a fingerprint.
    bool isComplete() const { return hasResults_ && results_ == fingerprints_; }

    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t&) override { return true; }
    bool binary(binary_t&) override { return true; }
    bool start_object(std::size_t) override { return begin('{'); }
    bool end_object() override { return end(); }
    bool start_array(std::size_t) override { return begin('['); }
    bool end_array() override { return end(); }
    bool key(string_t& name) override {
        key_ = name;
        return true;
    }
    bool string(string_t& value) override {
        if (depth_ == way.size() && onWay_ == depth_ && key_ == fingerprintName)
            addFingerprint(value);
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return false;
    }

private:
    /// An object or array, by its first character, and its key in the object that it is in.
    struct Step {
        char bracket;
        std::string_view key;
    };

    /// From the log to the fingerprints of a result.
    static constexpr std::array way = {Step{'{', ""}, Step{'[', "runs"},
                                       Step{'{', ""}, Step{'[', "results"},
                                       Step{'{', ""}, Step{'{', "partialFingerprints"}};
    static constexpr std::size_t depthOfResults = 4;

    bool begin(char bracket) {
        if (onWay_ == depth_ && depth_ < way.size() && way.at(depth_).bracket == bracket &&
            way.at(depth_).key == key_) {
            ++onWay_;
            hasResults_ = hasResults_ || onWay_ == depthOfResults;
            results_ += onWay_ == depthOfResults + 1 ? 1 : 0;
        }
        ++depth_;
        key_.clear(); // what an array holds has none
        return true;
    }

    bool end() {
        --depth_;
        onWay_ = std::min(onWay_, depth_);
        key_.clear();
        return true;
    }

    /// @param text the hash, in hexadecimal, and behind a colon the number among equal ones
    void addFingerprint(std::string_view text) {
        constexpr std::size_t digits = 16;
        constexpr int base = 16;
        std::uint64_t hash = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), hash, base);
        if (read.ec != std::errc() || read.ptr != text.data() + digits)
            return;
        ++counts_[hash];
        ++fingerprints_;
    }

    std::map<std::uint64_t, std::size_t>& counts_;
    std::string key_;       ///< The last one; empty in an array.
    std::size_t depth_ = 0; ///< How many objects and arrays are open,
    std::size_t onWay_ = 0; ///< and how many of them, from the outermost on, lead to fingerprints.
    bool hasResults_ = false;
    std::size_t results_ = 0;
    std::size_t fingerprints_ = 0;
};

} // namespace

Baseline::Baseline(const std::string& path) {
    FileStream file(path);
    std::istream stream(&file);
    FingerprintReader reader(counts_);
    const bool isJson = file.failure().empty() && nlohmann::json::sax_parse(stream, &reader);
    if (!file.failure().empty())
        throw std::invalid_argument(fmt::format("{}: {}", escape(path), file.failure()));
    if (!isJson)
        throw std::invalid_argument(fmt::format("{} is no JSON", escape(path)));
    if (!reader.isComplete())
        throw std::invalid_argument(
            fmt::format("{} was not written by qenxml check --format sarif", escape(path)));
}

bool Baseline::take(std::uint64_t fingerprint) {
    const auto known = counts_.find(fingerprint);
    if (known == counts_.end())
        return false;
    if (--known->second == 0)
        counts_.erase(known);
    return true;
}
