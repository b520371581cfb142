#include "overview/InstructionFileRows.h"

#include <utility>

#include <QClipboard>
#include <QGuiApplication>

#include "base/QtText.h"
#include "overview/ShareText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

QString nameOf(std::string_view path)
{
    return qtText(path.substr(path.find_last_of('/') + 1));
}

QVariant unreadableData(std::string_view path, int role)
{
    const QString words = InstructionFileRows::tr("Could not be read");
    switch (role) {
    case InstructionFileRows::Size:
        return words;
    case InstructionFileRows::Weight:
        return 0.0;
    case InstructionFileRows::IsReadable:
        return false;
    case InstructionFileRows::Words:
        return InstructionFileRows::tr("%1. %2.").arg(qtText(path), words);
    default:
        return QString();
    }
}

} // namespace

void InstructionFileRows::show(Context context, std::vector<ListedFile> rows)
{
    beginResetModel();
    m_context = std::move(context);
    m_rows = std::move(rows);
    endResetModel();
    Q_EMIT countChanged();
}

void InstructionFileRows::copyPath(int row) const
{
    if (row >= 0 && row < count())
        QGuiApplication::clipboard()->setText(path(row));
}

int InstructionFileRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant InstructionFileRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ListedFile &row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == Path)
        return qtText(row.path);
    if (role == Name)
        return nameOf(row.path);
    return row.estimate != nullptr ? readableData(*row.estimate, role)
                                   : unreadableData(row.path, role);
}

QHash<int, QByteArray> InstructionFileRows::roleNames() const
{
    return {{Path, "path"},       {Name, "name"},     {Size, "size"},
            {Tokens, "tokens"},   {Amount, "amount"}, {Share, "share"},
            {Figures, "figures"}, {Weight, "weight"}, {IsReadable, "isReadable"},
            {Words, "words"}};
}

QString InstructionFileRows::text(int row, Role role) const
{
    return row >= 0 && row < count() ? data(index(row), role).toString() : QString();
}

QVariant InstructionFileRows::readableData(const InstructionFileEstimate &file, int role) const
{
    const auto share = [&] { return ShareText::ofTotal(file.estimatedTokens, m_context.total); };
    switch (role) {
    case Size:
        return tr("%1 bytes on disk · local estimate at 4 bytes/token")
            .arg(grouped(file.byteCount));
    case Tokens:
        return grouped(file.estimatedTokens);
    case Amount:
        return (file.estimatedTokens == 1 ? tr("%1 token") : tr("%1 tokens"))
            .arg(grouped(file.estimatedTokens));
    case Share:
        return share();
    case Figures:
        return tr("%1 estimated tokens · %2").arg(grouped(file.estimatedTokens), share());
    case Weight:
        return static_cast<double>(file.estimatedTokens);
    case IsReadable:
        return true;
    case Words:
        return tr("%1. %2. %3.")
            .arg(qtText(file.path), readableData(file, Figures).toString(),
                 readableData(file, Size).toString());
    default:
        return {};
    }
}

QString InstructionFileRows::grouped(std::int64_t number) const
{
    return qtText(NumberText::grouped(number, m_context.locale));
}

} // namespace Loadwick

#include "moc_InstructionFileRows.cpp"
