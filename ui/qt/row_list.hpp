#pragma once

#include <QBoxLayout>
#include <QWidget>
#include <cstddef>
#include <vector>

namespace kelmar {

/// The widgets of a list of records, as many as there are records. A record that stays keeps its
/// widget, and with it focus and all: only the last ones come and go.
template <class Row>
class RowList {
public:
    /// Rows are added to `layout`, which outlives this.
    explicit RowList(QBoxLayout& layout) : layout_(layout) {}

    /// Shows `records`, each by `row.render(record)`; `make(index)` makes a row that is missing.
    template <class Record, class Make>
    void render(const std::vector<Record>& records, const Make& make) {
        while (rows_.size() > records.size()) {
            delete rows_.back();
            rows_.pop_back();
        }
        while (rows_.size() < records.size()) {
            rows_.push_back(make(rows_.size()));
            layout_.addWidget(rows_.back());
            rows_.back()->show(); // now, and not one picture later, as a layout would
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
