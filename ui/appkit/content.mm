#include "ui/appkit/content.h"

#include "ui/appkit/busy_row.h"
#include "ui/appkit/callout.h"
#include "ui/appkit/data_section.h"
#include "ui/appkit/details.h"
#include "ui/appkit/found_section.h"
#include "ui/appkit/paragraph.h"
#include "ui/appkit/progress_section.h"
#include "ui/appkit/result_sections.h"
#include "ui/look.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>
#include <variant>

namespace kelmar {

/// The blocks, in the order in which they stand in the column; nil until they are needed. They
/// belong to the column.
struct ContentBlocks {
    KelmarBusyRow* busy = nil;
    KelmarParagraph* text = nil;
    KelmarCalloutBox* notice = nil;
    KelmarFoundSection* found = nil;
    KelmarDataSection* data = nil;
    KelmarProgressSection* progress = nil;
    KelmarSummarySection* summary = nil;
    KelmarProblemsSection* problems = nil;
    KelmarDetailsView* details = nil;
    std::size_t kind = std::variant_npos; ///< of the content that is shown
    bool unfolded = false;                ///< the log takes what is left of the page
    bool foundNothing = false;            ///< but data: a heading with no card
    bool foldersShown = false;
    std::set<KelmarFlippedView*> used; ///< by the page that is being rendered

    [[nodiscard]] std::array<KelmarFlippedView*, 9> inOrder() const {
        return {busy, text, notice, found, data, progress, summary, problems, details};
    }
};

namespace {

/// The block to show next: the one that is there, or else what `make` makes.
template <typename Block, typename Make>
Block* shown(ContentBlocks& blocks, NSView* column, Block*& block, const Make& make) {
    if (block == nil) {
        block = make();
        NSView* before = nil;
        for (KelmarFlippedView* const each : blocks.inOrder()) {
            if (each == block) {
                break;
            }
            before = each != nil ? each : before;
        }
        insertSubview(column, block, before);
    }
    blocks.used.insert(block);
    return block;
}

} // namespace

} // namespace kelmar

@interface KelmarContentView ()

- (void)renderScanning:(const kelmar::ScanningContent&)content;
- (void)renderNothingFound:(const kelmar::NothingFoundContent&)content;
- (void)renderReady:(const kelmar::ReadyContent&)content;
- (void)renderWorking:(const kelmar::WorkingContent&)content;
- (void)renderFinished:(const kelmar::FinishedContent&)content;
- (void)renderDetails:(const kelmar::Details&)details;
- (void)revealData;
- (void)layOutAlone:(KelmarFlippedView*)block width:(CGFloat)width;
- (void)layOutColumn;

@end

namespace kelmar {

namespace {

void renderContent(KelmarContentView* view, const ScanningContent& content) {
    [view renderScanning:content];
}

void renderContent(KelmarContentView* view, const NothingFoundContent& content) {
    [view renderNothingFound:content];
}

void renderContent(KelmarContentView* view, const ReadyContent& content) {
    [view renderReady:content];
}

void renderContent(KelmarContentView* view, const WorkingContent& content) {
    [view renderWorking:content];
}

void renderContent(KelmarContentView* view, const FinishedContent& content) {
    [view renderFinished:content];
}

} // namespace

} // namespace kelmar

@implementation KelmarContentView

+ (instancetype)viewWithActions:(const kelmar::WindowActions*)actions frame:(NSRect)frame {
    return [[[self alloc] initWithActions:actions frame:frame] autorelease];
}

- (instancetype)initWithActions:(const kelmar::WindowActions*)actions frame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        actions_ = actions;
        blocks_ = new kelmar::ContentBlocks;
        column_ = [[[KelmarFlippedView alloc] initWithFrame:[self bounds]] autorelease];
        [self setDrawsBackground:NO];
        [self setBorderType:NSNoBorder];
        [self setHasVerticalScroller:YES];
        [self setHasHorizontalScroller:NO];
        [self setAutohidesScrollers:YES];
        [self setDocumentView:column_];
        above_ = [self addVeilAtTop:YES];
        below_ = [self addVeilAtTop:NO];
    }
    return self;
}

/// Under the scroll bar.
- (KelmarVeil*)addVeilAtTop:(BOOL)above {
    KelmarVeil* const veil = [KelmarVeil veilAtTop:above];
    [veil setHidden:YES];
    [self addSubview:veil positioned:NSWindowAbove relativeTo:[self contentView]];
    return veil;
}

- (void)reflectScrolledClipView:(NSClipView*)clip {
    [super reflectScrolledClipView:clip];
    const NSRect seen = [clip documentVisibleRect];
    [above_ setHidden:NSMinY(seen) <= 0];
    [below_ setHidden:NSMaxY(seen) >= NSHeight([column_ frame])];
}

- (void)tile {
    [super tile];
    using kelmar::Look::scrollVeil;
    const NSRect content = [[self contentView] frame];
    const CGFloat bottom = NSMaxY(content) - scrollVeil;
    const bool flipped = [self isFlipped];
    const auto place = [content](KelmarVeil* veil, CGFloat top) {
        kelmar::setFrame(veil, NSMakeRect(NSMinX(content), top, NSWidth(content), scrollVeil));
    };
    place(above_, flipped ? NSMinY(content) : bottom);
    place(below_, flipped ? bottom : NSMinY(content));
}

- (void)dealloc {
    delete blocks_;
    [super dealloc];
}

- (void)render:(const kelmar::Content&)content {
    blocks_->used.clear();
    blocks_->unfolded = false;
    const bool isAnother = std::exchange(blocks_->kind, content.index()) != content.index();
    if (isAnother) {
        [blocks_->found forgetIcons]; // between two scans there is another content
    }
    std::visit([self](const auto& each) { kelmar::renderContent(self, each); }, content);
    // Not one of those that stay is hidden in between: it would lose the keyboard's focus.
    for (KelmarFlippedView* block : blocks_->inOrder()) {
        [block setHidden:blocks_->used.contains(block) ? NO : YES];
    }
    [self layOutColumn];
    const auto* const ready = std::get_if<kelmar::ReadyContent>(&content);
    const bool folders = ready != nullptr && ready->data && !ready->data->lists.empty();
    const bool unfolds = !std::exchange(blocks_->foldersShown, folders) && folders;
    if (isAnother) {
        [column_ scrollPoint:NSZeroPoint];
    } else if (unfolds) {
        [self revealData];
    }
}

- (void)renderScanning:(const kelmar::ScanningContent&)content {
    [kelmar::shown(*blocks_, column_, blocks_->busy, [] { return [KelmarBusyRow row]; })
        render:content.busy];
}

- (void)renderNothingFound:(const kelmar::NothingFoundContent&)content {
    [kelmar::shown(*blocks_, column_, blocks_->text, [] { return [KelmarParagraph paragraph]; })
        showText:content.text];
}

- (void)renderReady:(const kelmar::ReadyContent&)content {
    if (content.notice) {
        [kelmar::shown(*blocks_, column_, blocks_->notice, [] { return [KelmarCalloutBox box]; })
            render:*content.notice];
    }
    [kelmar::shown(*blocks_, column_, blocks_->found, [] { return [KelmarFoundSection section]; })
        render:content.found];
    blocks_->foundNothing = content.found.rows.empty();
    if (content.data) {
        const auto make = [actions = actions_] {
            return [KelmarDataSection sectionWithActions:actions];
        };
        [kelmar::shown(*blocks_, column_, blocks_->data, make) render:*content.data];
    }
}

- (void)renderWorking:(const kelmar::WorkingContent&)content {
    [kelmar::shown(*blocks_, column_, blocks_->progress,
                   [] { return [KelmarProgressSection section]; }) render:content];
    [self renderDetails:content.details];
}

- (void)renderFinished:(const kelmar::FinishedContent&)content {
    [kelmar::shown(*blocks_, column_, blocks_->summary,
                   [] { return [KelmarSummarySection section]; }) render:content.summary];
    if (content.problems) {
        [kelmar::shown(*blocks_, column_, blocks_->problems,
                       [] { return [KelmarProblemsSection section]; }) render:*content.problems];
    }
    [self renderDetails:content.details];
}

- (void)renderDetails:(const kelmar::Details&)details {
    const auto make = [actions = actions_] { return [KelmarDetailsView viewWithActions:actions]; };
    [kelmar::shown(*blocks_, column_, blocks_->details, make) render:details];
    blocks_->unfolded = details.shown;
}

/// All of the data section if there is room for it, else from its heading on.
- (void)revealData {
    using kelmar::Look::sectionGap;
    const NSRect seen = [[self contentView] documentVisibleRect];
    const NSRect data = [blocks_->data frame];
    const CGFloat place =
        std::min(NSMinY(data) - sectionGap, NSMaxY(data) + sectionGap - NSHeight(seen));
    if (place > NSMinY(seen)) {
        [column_ scrollPoint:NSMakePoint(0, place)];
    }
}

/// In the middle of the page.
- (void)layOutAlone:(KelmarFlippedView*)block width:(CGFloat)width {
    const NSSize room = [self contentSize];
    const CGFloat left = std::floor(([self frame].size.width - width) / 2);
    const CGFloat top = std::floor((room.height - [block layOutForWidth:width]) / 2);
    const CGFloat below =
        kelmar::place(block, left, std::max<CGFloat>(kelmar::Look::sectionGap, top), width);
    kelmar::setFrame(column_, NSMakeRect(0, 0, room.width, std::max(room.height, below)));
}

/// The blocks that are shown, one below the other. The log of a run, unfolded, takes what is
/// left of the page; otherwise the column is as high as it needs to be.
- (void)layOutColumn {
    using namespace kelmar::Look;
    if (blocks_->used.contains(blocks_->busy)) {
        [self layOutAlone:blocks_->busy width:[blocks_->busy naturalWidth]];
        return;
    }
    if (blocks_->used.contains(blocks_->text)) {
        [self layOutAlone:blocks_->text width:[self frame].size.width - 2 * noticeMargin];
        return;
    }
    const NSSize room = [self contentSize];
    const CGFloat inside = [self frame].size.width - 2 * pageMargin;
    CGFloat below = 0;
    for (KelmarFlippedView* block : blocks_->inOrder()) {
        if (block == nil || [block isHidden]) {
            continue;
        }
        // A heading with nothing under it keeps no distance of its own.
        const bool follows = block == blocks_->data && blocks_->foundNothing;
        const CGFloat top = below + (follows ? lineGap : sectionGap);
        if (block == blocks_->details) {
            [blocks_->details setRoom:blocks_->unfolded ? room.height - top - sectionGap : 0];
        }
        below = kelmar::place(block, pageMargin, top, inside);
    }
    const CGFloat height = std::max(room.height, below + sectionGap);
    kelmar::setFrame(column_, NSMakeRect(0, 0, room.width, height));
}

@end
