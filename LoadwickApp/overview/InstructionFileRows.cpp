#include "overview/InstructionFileRows.h"

#include <utility>

#include <QClipboard>
#include <QGuiApplication>

#include "overview/ShareText.h"
#include "report/NumberText.h"
#include "shell/QtText.h"

namespace Loadwick {
namespace {

QString nameOf(std::string_view path)
{
    return qtText(path.substr(path.find_last_of('/') + 1));
}

QVariant unreadableData(std::string_view path, int role)
{
    const QString words = QStringLiteral("Could not be read");
    switch (role) {
    case InstructionFileRows::Size:
        return words;
    case InstructionFileRows::Weight:
        return 0.0;
    case InstructionFileRows::IsReadable:
        return false;
    case InstructionFileRows::Words:
        return QVariant(qtText(path) + QStringLiteral(". ") + words + QStringLiteral("."));
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
        return QVariant(grouped(file.byteCount) +
                        QStringLiteral(" bytes on disk · local estimate at 4 bytes/token"));
    case Tokens:
        return grouped(file.estimatedTokens);
    case Amount:
        return QVariant(grouped(file.estimatedTokens) + (file.estimatedTokens == 1
                                                             ? QStringLiteral(" token")
                                                             : QStringLiteral(" tokens")));
    case Share:
        return share();
    case Figures:
        return QVariant(grouped(file.estimatedTokens) + QStringLiteral(" estimated tokens · ") +
                        share());
    case Weight:
        return static_cast<double>(file.estimatedTokens);
    case IsReadable:
        return true;
    case Words:
        return QVariant(qtText(file.path) + QStringLiteral(". ") +
                        readableData(file, Figures).toString() + QStringLiteral(". ") +
                        readableData(file, Size).toString() + QStringLiteral("."));
    default:
        return {};
    }
}

QString InstructionFileRows::grouped(std::int64_t number) const
{
    return qtText(NumberText::grouped(number, m_context.locale));
}

} // namespace Loadwick
