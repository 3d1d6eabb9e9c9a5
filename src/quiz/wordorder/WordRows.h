#pragma once

#include <QList>
#include <QPointF>
#include <QSizeF>

/**
 * @brief Where the word labels of the word-order quiz stand in their work area.
 *
 * While the labels fit in one row (with a gap of `padding` on both sides) they stand in one row
 * centred both ways. A longer phrase wraps into as many rows as it needs, each centred, the
 * block centred vertically; a block taller than the area starts at its top and the area
 * scrolls. Labels of one row are `padding` apart and rows are `padding` apart, so no two
 * labels ever overlap.
 */
struct WordRows {
    QList<QPointF> positions; ///< top-left of each label, in the order the widths were given
    int rowCount{0};
    double top{0};           ///< y of the first row
    double rowPitch{0};      ///< label height plus the gap between rows
    double contentHeight{0}; ///< the area's height, or the block's when it is taller

    /// The row nearest to a label whose top stands at y, clamped to the rows there are: a label
    /// dropped above the first row or below the last one joins that row.
    [[nodiscard]] int rowAt(double y) const;
};

[[nodiscard]] WordRows layOutWordRows(const QList<double> &widths, QSizeF area, double labelHeight,
                                      double padding);
