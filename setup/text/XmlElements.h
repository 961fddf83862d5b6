#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace tarvo {

/// A part of a text, from its first character to the one after its last.
struct TextRange {
    qsizetype begin = 0;
    qsizetype end = 0;
};

/// One element of an XML text, and where it stands there.
struct XmlElement {
    QString name;
    QString text{}; ///< the characters directly in it
    TextRange whole;
    TextRange content; ///< what is between its tags; empty at the end of an element that is one tag
    std::vector<XmlElement> children{};
    std::vector<TextRange> comments{}; ///< those directly in it

    bool isOneTag() const { return content.begin == whole.end; }
};

/// @param text  well-formed, nested no deeper than a reader of its own has found bearable
/// @return the root element; nil when the elements cannot be found in the text as they were read
std::optional<XmlElement> xmlElements(const QString &text);

} // namespace tarvo
