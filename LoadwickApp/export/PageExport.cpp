#include "export/PageExport.h"

#include <new>
#include <utility>

#include <QPointer>

#include "base/QtTaskDispatcher.h"
#include "base/QtText.h"
#include "export/SavedFile.h"
#include "text/PathText.h"

namespace Loadwick {
namespace {

bool isDrawing(const std::filesystem::path &file)
{
    return qtText(pathText(file)).endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
}

std::error_code written(const FileSaver::Target &target, const PictureFrame::Bytes &bytes)
{
    try {
        return SavedFile::write(target, bytes());
    } catch (const std::bad_alloc &) {
        return std::make_error_code(std::errc::not_enough_memory);
    }
}

} // namespace

PageExport::PageExport(Contents contents, FileSaver &saver,
                       std::shared_ptr<TaskDispatcher> dispatcher)
    : m_contents(std::move(contents)), m_saver(saver), m_dispatcher(std::move(dispatcher))
{}

void PageExport::saveTable()
{
    save(tr("Save the data"), QStringLiteral(".csv"), tr("Comma-separated values (*.csv)"),
         m_contents.table());
}

void PageExport::saveChart(PainterItem *chart, PictureFrame *frame)
{
    const QPointer<PageExport> page(this);
    const QPointer<PainterItem> shown(chart);
    const QPointer<PictureFrame> around(frame);
    const FileSaver::Request request = {
        .title = tr("Save the chart"),
        .name = m_contents.name() + QStringLiteral(".png"),
        .filters = {tr("PNG picture (*.png)"), tr("SVG drawing (*.svg)")}};
    m_saver.open(request, [page, shown, around](const FileSaver::Target &target) {
        if (page && shown && around)
            page->write(target, isDrawing(target.file) ? around->svg(*shown) : around->png(*shown));
    });
}

void PageExport::saveReport()
{
    save(tr("Save the report"), QStringLiteral(".html"), tr("Web page (*.html)"),
         m_contents.report());
}

void PageExport::save(const QString &title, const QString &ending, const QString &filter,
                      const PictureFrame::Bytes &bytes)
{
    const QPointer<PageExport> page(this);
    const FileSaver::Request request = {
        .title = title, .name = m_contents.name() + ending, .filters = {filter}};
    m_saver.open(request, [page, bytes](const FileSaver::Target &target) {
        if (page)
            page->write(target, bytes);
    });
}

void PageExport::write(const FileSaver::Target &target, const PictureFrame::Bytes &bytes)
{
    const bool isStarted = inBackground(
        this, m_dispatcher, [target, bytes] { return written(target, bytes); },
        [this, target](const std::error_code &failure) { tell(target, failure); });
    if (!isStarted)
        tell(target, std::make_error_code(std::errc::resource_unavailable_try_again));
}

void PageExport::tell(const FileSaver::Target &target, const std::error_code &failure)
{
    m_failed = static_cast<bool>(failure);
    const QString file = qtText(pathText(target.file));
    m_outcome = m_failed ? tr("%1 could not be written: %2").arg(file, SavedFile::reason(failure))
                         : tr("Saved as %1.").arg(file);
    Q_EMIT changed();
}

} // namespace Loadwick

#include "moc_PageExport.cpp"
