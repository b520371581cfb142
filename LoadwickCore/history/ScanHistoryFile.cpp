#include "history/ScanHistoryFile.h"

#include <utility>

#include "text/IsoDate.h"
#include "json/JsonText.h"
#include "json/JsonWriter.h"

namespace Loadwick {

namespace {

using Json = nlohmann::json;

/// Null when there is no such member or it is no text.
const std::string *textMember(const Json &object, std::string_view key)
{
    const Json *value = member(object, key);
    return value == nullptr ? nullptr : value->get_ptr<const std::string *>();
}

/// The elements of a list member, each read by `read`; nothing when one of them cannot be read, or
/// the member is missing or no list.
template<typename Element>
std::optional<std::vector<Element>> listMember(const Json &object, std::string_view key,
                                               std::optional<Element> (*read)(const Json &))
{
    const Json *list = member(object, key);
    if (list == nullptr || !list->is_array())
        return std::nullopt;
    std::vector<Element> elements;
    elements.reserve(list->size());
    for (const Json &value : *list) {
        std::optional<Element> element = read(value);
        if (!element)
            return std::nullopt;
        elements.push_back(std::move(*element));
    }
    return elements;
}

std::optional<RecordedCategory> readCategory(const Json &object)
{
    const std::string *name = textMember(object, "name");
    const std::optional<std::int64_t> tokens = exactInteger(member(object, "tokens"));
    if (name == nullptr || !tokens)
        return std::nullopt;
    return RecordedCategory{.name = *name, .tokens = *tokens};
}

std::optional<Uuid> readIdentifier(const Json &object)
{
    const std::string *text = textMember(object, "id");
    return text == nullptr ? std::nullopt : Uuid::fromText(*text);
}

std::optional<std::chrono::sys_seconds> readDate(const Json &object)
{
    const std::string *text = textMember(object, "date");
    return text == nullptr ? std::nullopt : IsoDate::fromText(*text);
}

std::optional<RecordedScan> readScan(const Json &object)
{
    const auto id = readIdentifier(object);
    const auto date = readDate(object);
    const std::string *repositoryName = textMember(object, "repositoryName");
    const std::string *repositoryPath = textMember(object, "repositoryPath");
    const auto total = exactInteger(member(object, "total"));
    auto categories = listMember<RecordedCategory>(object, "categories", readCategory);
    if (!id || !date || repositoryName == nullptr || repositoryPath == nullptr || !total ||
        !categories)
        return std::nullopt;
    return RecordedScan{.id = *id,
                        .repositoryName = *repositoryName,
                        .repositoryPath = *repositoryPath,
                        .date = *date,
                        .total = *total,
                        .categories = std::move(*categories)};
}

template<typename Value>
void writeMember(JsonWriter &writer, std::string_view key, const Value &value)
{
    writer.key(key);
    writer.value(value);
}

void writeCategory(JsonWriter &writer, const RecordedCategory &category)
{
    writer.open('{');
    writeMember(writer, "name", category.name);
    writeMember(writer, "tokens", category.tokens);
    writer.close('}');
}

template<typename Element>
void writeList(JsonWriter &writer, const std::vector<Element> &elements,
               void (*write)(JsonWriter &, const Element &))
{
    writer.open('[');
    for (const Element &element : elements) {
        writer.element();
        write(writer, element);
    }
    writer.close(']');
}

void writeScan(JsonWriter &writer, const RecordedScan &scan)
{
    writer.open('{');
    writer.key("categories");
    writeList(writer, scan.categories, writeCategory);
    writeMember(writer, "date", IsoDate::text(scan.date));
    writeMember(writer, "id", scan.id.text());
    writeMember(writer, "repositoryName", scan.repositoryName);
    writeMember(writer, "repositoryPath", scan.repositoryPath);
    writeMember(writer, "total", scan.total);
    writer.close('}');
}

} // namespace

std::optional<ScanHistoryFile> ScanHistoryFile::decoded(std::string_view json)
{
    const std::optional<JsonTree> object = jsonObject(json, {"scans", "version"});
    if (!object)
        return std::nullopt;
    const auto fileVersion = exactInteger(member(*object, "version"));
    auto recorded = listMember<RecordedScan>(*object, "scans", readScan);
    if (!fileVersion || !recorded)
        return std::nullopt;
    return ScanHistoryFile{.version = *fileVersion, .scans = std::move(*recorded)};
}

std::string ScanHistoryFile::encoded() const
{
    JsonWriter writer;
    writer.open('{');
    writer.key("scans");
    writeList(writer, scans, writeScan);
    writeMember(writer, "version", version);
    writer.close('}');
    return writer.text();
}

} // namespace Loadwick
