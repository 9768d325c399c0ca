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

/// The content of the page between its header and its footer, in one column that scrolls. Every
/// block is made when it is first needed, then kept, shown and hidden: a block that two phases
/// share, such as the record of a run, lives on from one to the other.
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

    /// The block at `place`, made from `parts` if it is not there yet; it will be shown.
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
    std::set<Place> used_;                ///< by the page that is being rendered
    std::optional<Place> fills_; ///< the block of that page that takes all the height that is left
    bool unfolded_ = false;      ///< the folders are listed
    bool reveals_ = false;       ///< they have just been unfolded
    QWidget* above_;             ///< veils of the content's edges
    QWidget* below_;
    std::size_t kind_; ///< of the content that is shown
};

} // namespace kelmar
