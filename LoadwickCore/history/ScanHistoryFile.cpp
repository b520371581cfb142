#include "history/ScanHistoryFile.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "text/DateText.h"
#include "text/UnicodeText.h"
#include "json/JsonReader.h"
#include "json/JsonWriter.h"

namespace Loadwick {

namespace {

/// The elements of a list member, each read by `read`; nothing when one of them cannot be read, or
/// the member is missing or not a list.
template<typename Element>
std::optional<std::vector<Element>> listMember(const JsonValue &object, std::string_view key,
                                               std::optional<Element> (*read)(const JsonValue &))
{
    const JsonValue *value = member(object, key);
    const auto *list = value == nullptr ? nullptr : value->as<JsonValue::Array>();
    if (list == nullptr)
        return std::nullopt;
    std::vector<Element> elements;
    elements.reserve(list->size());
    for (const JsonValue &item : *list) {
        std::optional<Element> element = read(item);
        if (!element)
            return std::nullopt;
        elements.push_back(std::move(*element));
    }
    return elements;
}

std::optional<RecordedCategory> readCategory(const JsonValue &object)
{
    const std::string *name = textOf(member(object, "name"));
    const std::optional<std::int64_t> tokens = exactInteger(member(object, "tokens"));
    if (name == nullptr || !tokens)
        return std::nullopt;
    return RecordedCategory{.name = *name, .tokens = *tokens};
}

std::optional<Uuid> readIdentifier(const JsonValue &object)
{
    const std::string *text = textOf(member(object, "id"));
    return text == nullptr ? std::nullopt : Uuid::fromText(*text);
}

std::optional<std::chrono::sys_seconds> readDate(const JsonValue &object)
{
    const std::string *text = textOf(member(object, "date"));
    return text == nullptr ? std::nullopt : IsoDate::fromText(*text);
}

std::optional<RecordedScan> readScan(const JsonValue &object)
{
    const auto id = readIdentifier(object);
    const auto date = readDate(object);
    const std::string *repositoryName = textOf(member(object, "repositoryName"));
    const std::string *repositoryPath = textOf(member(object, "repositoryPath"));
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

template<typename List>
void writeList(JsonWriter &writer, const List &elements,
               void (*write)(JsonWriter &, const typename List::value_type &))
{
    writer.open('[');
    for (const auto &element : elements) {
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

/// Bytes that a scan adds to a file, the comma behind it included.
std::size_t encodedSize(const RecordedScan &scan)
{
    JsonWriter writer;
    writer.open('{');
    writer.open('[');
    const std::size_t before = writer.text().size();
    writer.element();
    writeScan(writer, scan);
    return writer.text().size() - before + 1;
}

/// Keeps the newest of `scans` whose sizes add up to at most `byteLimit`. A scan that exceeds it by
/// itself loses its categories.
void keepWithin(std::vector<RecordedScan> &scans, std::size_t byteLimit)
{
    auto oldest = scans.end();
    for (std::size_t size = 0; oldest != scans.begin(); --oldest) {
        RecordedScan &scan = *std::prev(oldest);
        if (encodedSize(scan) > byteLimit)
            scan.categories = {};
        size += encodedSize(scan);
        if (size > byteLimit)
            break;
    }
    scans.erase(scans.begin(), oldest);
}

} // namespace

std::optional<ScanHistoryFile> ScanHistoryFile::decoded(std::string_view json)
{
    const std::optional<JsonValue> object =
        jsonObject(withoutByteOrderMark(json), {"scans", "version"});
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

std::string ScanHistoryFile::encodedWithin(std::size_t byteLimit)
{
    std::string text = encoded();
    if (text.size() <= byteLimit)
        return text;
    std::size_t frameSize = text.size();
    for (const RecordedScan &scan : scans)
        frameSize -= encodedSize(scan);
    keepWithin(scans, byteLimit - std::min(frameSize, byteLimit));
    return encoded();
}

} // namespace Loadwick
