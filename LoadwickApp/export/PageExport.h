#pragma once

#include <functional>
#include <memory>
#include <system_error>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "base/PainterItem.h"
#include "dialogs/FileSaver.h"
#include "export/PictureFrame.h"
#include "model/TaskDispatcher.h"

namespace Loadwick {

/// Saves one page as files for other programs: its figures as comma-separated values, its chart as
/// a picture, all of it as a report. Files are written in the background. Belongs to the interface
/// thread; the saver outlives it.
class PageExport final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")
    /// The outcome of the last save; empty before the first.
    Q_PROPERTY(QString outcome READ outcome NOTIFY changed)
    Q_PROPERTY(bool failed READ failed NOTIFY changed)

public:
    struct Contents
    {
        std::function<QString()> name; ///< of the files, without their ending
        std::function<PictureFrame::Bytes()> table;
        std::function<PictureFrame::Bytes()> report = {}; ///< an HTML file; most pages have none
    };

    PageExport(Contents contents, FileSaver &saver, std::shared_ptr<TaskDispatcher> dispatcher);

    [[nodiscard]] QString outcome() const { return m_outcome; }
    [[nodiscard]] bool failed() const noexcept { return m_failed; }

    /// The figures as they are when the user is asked for a file.
    Q_INVOKABLE void saveTable();

    /// As a drawing if the file's name ends in ".svg", else as a picture.
    Q_INVOKABLE void saveChart(Loadwick::PainterItem *chart, Loadwick::PictureFrame *frame);

    /// The report as it is at that moment.
    Q_INVOKABLE void saveReport();

Q_SIGNALS:
    void changed();

private:
    /// `filter` is that of a `FileSaver::Request`.
    void save(const QString &title, const QString &ending, const QString &filter,
              const PictureFrame::Bytes &bytes);
    void write(const FileSaver::Target &target, const PictureFrame::Bytes &bytes);
    void tell(const FileSaver::Target &target, const std::error_code &failure);

    Contents m_contents;
    FileSaver &m_saver;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
    QString m_outcome;
    bool m_failed = false;
};

} // namespace Loadwick
