#include "WordRows.h"

#include <algorithm>
#include <cmath>

int WordRows::rowAt(double y) const
{
    if (rowCount < 2 || rowPitch <= 0)
        return 0;
    const auto row = static_cast<int>(std::lround((y - top) / rowPitch));
    return std::clamp(row, 0, rowCount - 1);
}

WordRows layOutWordRows(const QList<double> &widths, QSizeF area, double labelHeight,
                        double padding)
{
    struct Row {
        qsizetype first;
        qsizetype end;
        double width;
    };
    // Greedy filling: a label that does not fit opens the next row; a row always takes at least
    // one label, however wide.
    const double available = area.width() - 2 * padding;
    QList<Row> rows;
    for (qsizetype i = 0; i < widths.size(); ++i) {
        if (!rows.isEmpty() && rows.last().width + padding + widths.at(i) <= available) {
            rows.last().end = i + 1;
            rows.last().width += padding + widths.at(i);
        } else {
            rows.append({i, i + 1, widths.at(i)});
        }
    }

    WordRows result;
    result.rowCount = static_cast<int>(rows.size());
    result.rowPitch = labelHeight + padding;
    const double blockHeight = rows.isEmpty() ? 0 : rows.size() * result.rowPitch - padding;
    result.top = blockHeight <= area.height() ? (area.height() - blockHeight) * 0.5 : 0;
    result.contentHeight = std::max(area.height(), blockHeight);
    result.positions.reserve(widths.size());
    double y = result.top;
    for (const Row &row : rows) {
        double x = std::max(0.0, (area.width() - row.width) * 0.5);
        for (qsizetype i = row.first; i < row.end; ++i) {
            result.positions.append({x, y});
            x += widths.at(i) + padding;
        }
        y += result.rowPitch;
    }
    return result;
}
