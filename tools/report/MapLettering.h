/// @file
/// The texts of the map: how much room they take, and where there is room left.

#ifndef QENXML_TOOLS_REPORT_MAPLETTERING_H
#define QENXML_TOOLS_REPORT_MAPLETTERING_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Part of the map.
struct Box {
    double left;
    double top;
    double right;
    double bottom;
};

/// How wide a text is at most in one of the usual faces, in bold, as a multiple of the size of its
/// letters.
double textWidth(std::string_view text);

/// The text, with an ellipsis in place of its end when it has more characters.
std::string shortened(std::string_view text, std::size_t mostCharacters);

/// Which parts of the map are still free. It looks at squares, not at all that has been put there,
/// so that its time does not depend on that.
class FreeRoom {
public:
    FreeRoom(double width, double height);

    /// @returns false also for what is not all on the map
    bool isFree(const Box& box) const;

    void take(const Box& box);

private:
    struct Squares;

    Squares squares(const Box& box) const;
    double width_;
    double height_;
    std::size_t columns_;
    std::vector<bool> taken_; // by row and column
};

#endif
