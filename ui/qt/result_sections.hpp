#pragma once

#include "ui/page.hpp"
#include "ui/qt/note_row.hpp"
#include "ui/qt/row_list.hpp"
#include "ui/qt/section.hpp"

#include <vector>

namespace kelmar {

class SelectableText;

/// What a finished run did and kept.
class SummarySectionWidget : public Section {
public:
    explicit SummarySectionWidget(QWidget* parent = nullptr);

    void render(const std::vector<SummaryRow>& rows);

private:
    QVBoxLayout* inside_;
    RowList<NoteRow> rows_;
};

class ProblemRowWidget : public QWidget {
public:
    explicit ProblemRowWidget(bool first, QWidget* parent = nullptr);

    void render(const ProblemRow& row);

private:
    SelectableText* path_;
    SelectableText* reason_;
};

/// What could not be removed.
class ProblemsSectionWidget : public Section {
public:
    explicit ProblemsSectionWidget(QWidget* parent = nullptr);

    void render(const ProblemsSection& section);

private:
    RowList<ProblemRowWidget> rows_;
};

} // namespace kelmar
