#pragma once

#include <QString>

namespace CUI {

/// What became of loading a file into a store.
struct LoadResult {
    enum class Extent {
        Nothing, ///< the store is as it was
        Part, ///< the store has what stands before an error in the file
        Everything,
    };

    Extent extent = Extent::Nothing;
    /// The error as it was logged; null when there is none, or the file cannot be opened.
    QString fault;

    bool isReplaced() const { return extent != Extent::Nothing; }
    bool isComplete() const { return extent == Extent::Everything; }
};

} // namespace CUI
