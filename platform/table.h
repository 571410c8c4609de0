// Tables of constants: a row by an index that may be anything, and proof that rows stand where they say.
#pragma once

#include <cstddef>
#include <functional>
#include <iterator>

namespace gloomdeck {

/// The index itself where a table of so many rows has it, else standIn.
constexpr int indexOr(int index, int rows, int standIn = 0) {
    return index >= 0 && index < rows ? index : standIn;
}

/// The row of an index; one out of range has the row of standIn.
template <typename Table>
constexpr decltype(auto) rowAt(Table& table, int index, int standIn = 0) {
    return table[static_cast<std::size_t>(indexOr(index, static_cast<int>(std::size(table)), standIn))];
}

/// True when the member of every row is the index at which the row stands.
template <typename Table, typename Member>
constexpr bool rowsStandAtTheirIndex(const Table& table, Member member) {
    for (std::size_t i = 0; i < std::size(table); ++i)
        if (static_cast<std::size_t>(std::invoke(member, table[i])) != i) return false;
    return true;
}

}  // namespace gloomdeck
