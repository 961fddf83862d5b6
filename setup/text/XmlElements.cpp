#include "setup/text/XmlElements.h"

#include <QXmlStreamReader>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// Follows a reader through a text and notes where elements begin and end.
class Locator {
public:
    explicit Locator(const QString &text)
        : m_text(text)
        , m_reader(text)
    {
        m_open.emplace_back(); // holds the root
    }

    std::optional<XmlElement> root()
    {
        while (!m_reader.atEnd()) {
            if (!note(m_reader.readNext()))
                return std::nullopt;
        }
        if (m_reader.hasError() || m_open.size() != 1 || m_open.back().children.size() != 1)
            return std::nullopt;
        return std::move(m_open.back().children.front());
    }

private:
    bool note(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::StartElement:
            return open();
        case QXmlStreamReader::EndElement:
            return close();
        case QXmlStreamReader::Characters:
            m_open.back().text += m_reader.text();
            return true;
        case QXmlStreamReader::Comment:
            m_open.back().comments.push_back(rangeFrom(u"<!--"_s));
            return true;
        default:
            return true;
        }
    }

    bool open()
    {
        const TextRange tag = rangeFrom(u"<"_s);
        XmlElement element{.name = m_reader.qualifiedName().toString(), .whole = tag, .content = {tag.end, tag.end}};
        m_open.push_back(std::move(element));
        return tag.begin >= 0 && QStringView(m_text).sliced(tag.begin + 1).startsWith(m_reader.qualifiedName())
            && m_text[tag.end - 1] == u'>';
    }

    bool close()
    {
        XmlElement element = std::move(m_open.back());
        m_open.pop_back();
        if (m_text[element.whole.end - 2] != u'/') {
            const TextRange tag = rangeFrom(u"</"_s);
            element.content.end = tag.begin;
            element.whole.end = tag.end;
        }
        const bool found = element.content.end >= element.content.begin && m_text[element.whole.end - 1] == u'>';
        m_open.back().children.push_back(std::move(element));
        return found;
    }

    /// @return what the reader read last, which starts with @p start
    TextRange rangeFrom(const QString &start) const
    {
        const qsizetype end = m_reader.characterOffset();
        return {m_text.lastIndexOf(start, end - start.size()), end};
    }

    const QString &m_text;
    QXmlStreamReader m_reader;
    std::vector<XmlElement> m_open;
};

} // namespace

std::optional<XmlElement> xmlElements(const QString &text)
{
    return Locator(text).root();
}

} // namespace tarvo
