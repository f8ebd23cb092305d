#pragma once

// One text cell of a stone's record, in the space of a pointer. The cells of a loaded table point
// into the table's own text, where the byte that led each cell (the comma before it, or the end of
// the line before) has been made its length: a table of large files then takes little more than
// its file. A cell that is set, copied, longer than that byte can count, or cut from a line whose
// quotes had to be removed holds its own copy, so a copy of a stone never outlives what it reads.

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace velmora {

class Cell {
public:
    Cell() = default;
    Cell(const Cell& other) { assign(other.view()); }
    Cell(Cell&& other) noexcept : p_(other.p_) { other.p_ = nullptr; }
    Cell& operator=(const Cell& other) {
        if (this != &other) {
            *this = other.view();
        }
        return *this;
    }
    Cell& operator=(Cell&& other) noexcept;
    Cell& operator=(std::string_view text);
    ~Cell() { release(); }

    // The longest text a cell of a loaded table keeps in place.
    static constexpr std::size_t longestInPlace = 254;

    // A cell of a loaded table whose text follows the byte at lead. That byte becomes the length,
    // so the text's owner must outlive the cell and the cell must stay with its table.
    static Cell inPlace(char* lead, std::size_t size);

    std::string_view view() const;
    operator std::string_view() const { return view(); }
    operator std::string() const { return std::string(view()); }
    bool empty() const { return view().empty(); }
    std::size_t size() const { return view().size(); }

    friend bool operator==(const Cell& a, const Cell& b) { return a.view() == b.view(); }
    friend bool operator==(const Cell& a, std::string_view b) { return a.view() == b; }
    friend std::string operator+(std::string a, const Cell& b) { return a.append(b.view()); }
    friend std::string operator+(const Cell& a, std::string_view b) {
        return std::string(a.view()).append(b);
    }
    friend std::string operator+(const Cell& a, const Cell& b) {
        return std::string(a.view()).append(b.view());
    }
    friend std::ostream& operator<<(std::ostream& out, const Cell& c) { return out << c.view(); }

private:
    void assign(std::string_view text);
    void release();

    // Nothing for an empty cell; else a lead byte, then the text. A lead below ownedLead is the
    // length of an in-place text; ownedLead marks a block of this cell's own, whose length follows
    // as a std::size_t.
    char* p_ = nullptr;
};

} // namespace velmora
