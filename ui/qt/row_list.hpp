#pragma once

#include <QBoxLayout>
#include <QWidget>
#include <cstddef>
#include <vector>

namespace kelmar {

/// The widgets of a list of records, one for each record. A record that stays keeps its widget,
/// including the focus; only widgets at the end are added and removed.
template <class Row>
class RowList {
public:
    /// Adds rows to `layout`, which must outlive this object.
    explicit RowList(QBoxLayout& layout) : layout_(layout) {}

    /// Shows `records` through `row.render(record)`; calls `make(index)` for a missing row.
    template <class Record, class Make>
    void render(const std::vector<Record>& records, const Make& make) {
        while (rows_.size() > records.size()) {
            Row* const last = rows_.back();
            rows_.pop_back();
            // Its destructor would do so too late: who hears of it must not meet half a row.
            last->clearFocus();
            delete last;
        }
        while (rows_.size() < records.size()) {
            rows_.push_back(make(rows_.size()));
            layout_.addWidget(rows_.back());
            rows_.back()->show(); // call show() now: one shown by its layout appears a frame late
        }
        for (std::size_t index = 0; index < records.size(); ++index) {
            rows_[index]->render(records[index]);
        }
    }

    [[nodiscard]] const std::vector<Row*>& rows() const { return rows_; }

private:
    QBoxLayout& layout_;
    std::vector<Row*> rows_; ///< owned by the layout's widget
};

} // namespace kelmar
