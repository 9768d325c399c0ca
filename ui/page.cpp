#include "ui/page.hpp"

#include "discovery/size_in_words.hpp"

namespace kelmar {

std::string Header::announcement() const {
    return title + (title.ends_with("…") ? " " : ". ") + subtitle;
}

std::string Page::announcement() const {
    const auto* const ready = std::get_if<ReadyContent>(&content);
    const bool noticed = ready != nullptr && ready->notice;
    return header.announcement() + (noticed ? " " + ready->notice->text : "");
}

std::string SizeText::text() const {
    return sizeInWords(bytes, "Measuring…");
}

std::string SizeText::accessibleName() const {
    return of + ", " + text();
}

} // namespace kelmar
