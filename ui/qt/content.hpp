#pragma once

#include "ui/page.hpp"
#include "ui/window_actions.hpp"

#include <QScrollArea>
#include <array>
#include <cstddef>
#include <optional>
#include <set>

class QVBoxLayout;

namespace kelmar {

/// The content of the page between header and footer, in one scrolling column. Every block is
/// created on first use, then kept, shown and hidden: a block that two phases share, such as the
/// log of a run, survives the change of phase.
class ContentWidget : public QScrollArea {
public:
    explicit ContentWidget(WindowActions actions, QWidget* parent = nullptr);
    ContentWidget(const ContentWidget&) = delete;
    ContentWidget& operator=(const ContentWidget&) = delete;
    ~ContentWidget() override;

    void render(const Content& content);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /// The blocks, in the order in which they stand in the column.
    enum class Place {
        busy,
        text,
        notice,
        found,
        data,
        progress,
        summary,
        problems,
        details,
    };
    static constexpr std::size_t places = 9;

    void renderBlocks(const ScanningContent& content);
    void renderBlocks(const NothingFoundContent& content);
    void renderBlocks(const ReadyContent& content);
    void renderBlocks(const WorkingContent& content);
    void renderBlocks(const FinishedContent& content);
    void renderDetails(const Details& details);

    /// Returns the block at `place`, creates it from `parts` if it does not exist, and marks it as
    /// shown.
    template <class Block, class... Parts>
    Block& block(Place place, const Parts&... parts);

    [[nodiscard]] QLayout& layoutOf(Place place) const;

    [[nodiscard]] QMargins& around(Place place) {
        return around_.at(static_cast<std::size_t>(place));
    }

    void keepReadingOrder(Place made);
    void revealData();
    void bringIntoSight(QWidget* focused);
    void veil();

    WindowActions actions_;
    QVBoxLayout* column_;
    std::array<QWidget*, places> blocks_{};
    std::array<QMargins, places> around_; ///< the blocks that are shown
    std::set<Place> used_;                ///< in the page being rendered
    std::optional<Place> fills_; ///< the block of that page that takes the remaining height
    bool unfolded_ = false;      ///< the folders are listed
    bool reveals_ = false;       ///< the folders were just listed
    QWidget* above_;             ///< fades of the content's edges
    QWidget* below_;
    std::size_t kind_; ///< variant index of the shown content
};

} // namespace kelmar
