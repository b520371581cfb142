#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include "overview/InstructionFileRows.h"
#include "report/ScanReport.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// The table of the instruction files that weigh most.
class LargestFilesPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString detail READ detail CONSTANT)
    Q_PROPERTY(QString fileHeader READ fileHeader CONSTANT)
    Q_PROPERTY(QString tokensHeader READ tokensHeader CONSTANT)
    Q_PROPERTY(QString shareHeader READ shareHeader CONSTANT)
    Q_PROPERTY(QString emptyText READ emptyText CONSTANT)
    Q_PROPERTY(Loadwick::InstructionFileRows *rows READ rows CONSTANT)

public:
    static constexpr std::size_t rowLimit = 5;

    explicit LargestFilesPresenter(TextLocale locale);

    void show(const ScanReport &report);

    [[nodiscard]] static QString title();
    [[nodiscard]] static QString detail();
    [[nodiscard]] static QString fileHeader();
    [[nodiscard]] static QString tokensHeader();
    [[nodiscard]] static QString shareHeader();
    [[nodiscard]] static QString emptyText();

    /// The largest first; files of equal tokens in the order in which they are listed.
    [[nodiscard]] InstructionFileRows *rows() { return &m_rows; }

private:
    TextLocale m_locale;
    InstructionFileRows m_rows;
};

} // namespace Loadwick
