#pragma once

#include "ui/log_lines.hpp"
#include "ui/look.hpp"

#include <QBasicTimer>
#include <QPlainTextEdit>
#include <cstddef>

namespace kelmar {

/// The record of a run, to be read, selected and copied. Lines are added below what is there:
/// neither the place that is being read nor a selection moves. Whoever reads at the end stays at
/// the end. A long record comes in portions, each within one picture of the screen.
class LogView : public QPlainTextEdit {
public:
    explicit LogView(QWidget* parent = nullptr);

    void render(const LogLines& log);

    /// As low as is of use; its place gives it what height there is.
    [[nodiscard]] QSize sizeHint() const override { return {200, Look::logHeight}; }

    [[nodiscard]] QSize minimumSizeHint() const override { return {100, Look::logHeight}; }

    /// Whether all of the record is in the view.
    [[nodiscard]] bool isComplete() const { return shown_ == log_.size(); }

protected:
    void timerEvent(QTimerEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void addPortion();
    void applyColours();

    LogLines log_;
    std::size_t shown_ = 0;
    bool following_ = true; ///< the end is being read, and stays in sight
    QBasicTimer more_;
};

} // namespace kelmar
