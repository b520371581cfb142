#pragma once

#include <initializer_list>
#include <utility>

#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>

namespace Loadwick {

/// Words of the page's language and of its style, as opposed to text for its reader; ASCII.
[[nodiscard]] inline QString markup(const char *words)
{
    return QString::fromLatin1(words);
}

/// Writes an HTML page that is well-formed XML as well. Text is escaped, whatever it holds, and
/// what neither format can express is replaced by U+FFFD.
class HtmlPage
{
public:
    using Attributes = std::initializer_list<std::pair<const char *, QString>>;

    /// An element that ends with this object.
    class Element
    {
    public:
        explicit Element(QXmlStreamWriter &writer) : m_writer(writer) {}
        ~Element() { m_writer.writeEndElement(); }
        Q_DISABLE_COPY_MOVE(Element)

    private:
        QXmlStreamWriter &m_writer;
    };

    HtmlPage();

    [[nodiscard]] Element open(const char *name, Attributes attributes = {});
    void element(const char *name, const QString &text, Attributes attributes = {});
    /// An element that never has content, such as "meta".
    void emptyElement(const char *name, Attributes attributes);
    void text(const QString &text);
    /// A text from outside, whose direction says nothing about that of the words around it.
    void foreign(const QString &text);

    [[nodiscard]] QByteArray bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
    QXmlStreamWriter m_writer;
};

} // namespace Loadwick
