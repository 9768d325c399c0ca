#include "tests/gnustep/harness/page_texts.hpp"

namespace kelmar::test {

namespace {

/// Goes through a content in reading order; both lists at once, so that neither can forget a part.
struct Reader {
    std::vector<std::string> texts;
    std::vector<std::string> symbols;

    void text(const std::string& one) {
        if (!one.empty()) {
            texts.push_back(one);
        }
    }

    void operator()(const ScanningContent& content) { text(content.busy.text); }

    void operator()(const NothingFoundContent& content) { text(content.text); }

    void operator()(const ReadyContent& content) {
        if (content.notice) {
            symbols.push_back(content.notice->symbol);
            text(content.notice->text);
        }
        text(content.found.title.text);
        for (const FoundRow& row : content.found.rows) {
            if (const auto* const symbol = std::get_if<FoundRow::Symbol>(&row.icon)) {
                symbols.push_back(symbol->name);
            }
            text(row.title);
            text(row.detail);
        }
        if (content.data) {
            (*this)(*content.data);
        }
    }

    void operator()(const DataSection& data) {
        for (const std::string& each :
             {data.title.text, data.label, data.total.text(), data.line, data.folders.text}) {
            text(each);
        }
        for (const FolderList& list : data.lists) {
            text(list.heading);
            for (const FolderRow& row : list.rows) {
                text(row.name);
                text(row.summary);
                text(row.size.text());
            }
            text(list.otherItems.value_or(""));
        }
    }

    void operator()(const WorkingContent& content) {
        for (const ProgressRow& row : content.stages) {
            if (row.icon.symbol) {
                symbols.push_back(*row.icon.symbol);
            }
            text(row.title);
        }
        text(content.detail);
        (*this)(content.details);
    }

    void operator()(const FinishedContent& content) {
        for (const SummaryRow& row : content.summary) {
            symbols.push_back(row.symbol);
            text(row.text);
        }
        if (content.problems) {
            text(content.problems->title.text);
            for (const ProblemRow& row : content.problems->rows) {
                symbols.emplace_back("exclamationmark.circle");
                text(row.path);
                text(row.reason);
            }
        }
        (*this)(content.details);
    }

    void operator()(const Details& details) {
        text(details.toggle.text);
        text(details.log.text());
    }
};

Reader read(const Page& page) {
    Reader reader;
    reader.text(page.header.title);
    reader.text(page.header.subtitle);
    std::visit([&reader](const auto& content) { reader(content); }, page.content);
    return reader;
}

} // namespace

std::vector<std::string> textsAbove(const Page& page) {
    return read(page).texts;
}

std::vector<std::string> symbolsAbove(const Page& page) {
    return read(page).symbols;
}

std::vector<std::string> textsOfFooter(const Footer& footer) {
    std::vector<std::string> texts;
    for (const FooterNote& note : footer.notes) {
        texts.push_back(note.text);
    }
    if (footer.busy) {
        texts.push_back(footer.busy->text);
    }
    for (const Button& button : footer.buttons) {
        texts.push_back(button.text);
    }
    return texts;
}

} // namespace kelmar::test
