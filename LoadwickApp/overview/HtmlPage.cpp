#include "overview/HtmlPage.h"

#include "base/XmlText.h"

namespace Loadwick {
namespace {

void add(QXmlStreamWriter &writer, HtmlPage::Attributes attributes)
{
    for (const auto &[name, value] : attributes)
        writer.writeAttribute(markup(name), expressibleInXml(value));
}

} // namespace

HtmlPage::HtmlPage() : m_writer(&m_bytes)
{
    m_writer.writeDTD(markup("<!DOCTYPE html>\n"));
}

HtmlPage::Element HtmlPage::open(const char *name, Attributes attributes)
{
    m_writer.writeStartElement(markup(name));
    add(m_writer, attributes);
    return Element(m_writer);
}

void HtmlPage::element(const char *name, const QString &text, Attributes attributes)
{
    const Element element = open(name, attributes);
    this->text(text);
}

void HtmlPage::emptyElement(const char *name, Attributes attributes)
{
    m_writer.writeEmptyElement(markup(name));
    add(m_writer, attributes);
}

// Even an empty text keeps the writer from ending the element as XML alone allows it.
void HtmlPage::text(const QString &text)
{
    m_writer.writeCharacters(expressibleInXml(text));
}

void HtmlPage::foreign(const QString &text)
{
    element("bdi", text);
}

} // namespace Loadwick
