#include "dialogs/FileSaver.h"

#include <algorithm>
#include <utility>

#include "base/QtText.h"
#include "dialogs/FileDialog.h"
#include "text/PathText.h"

namespace Loadwick {
namespace {

/// An ending added now was not part of any question whether to replace a file.
FileSaver::Target targetOf(const FileDialog &dialog, std::filesystem::path file)
{
    const QString missing = dialog.missingEnding(qtText(pathText(file)));
    file += missing.toStdString();
    return {.file = std::move(file), .mayReplace = missing.isEmpty()};
}

class PlatformFileSaver final : public FileSaver
{
public:
    explicit PlatformFileSaver(const QUrl &startFolder) : m_opener(startFolder) {}

    void attach(QWindow &window) override { m_opener.attach(window); }

    void open(const Request &request, Chosen chosen) override
    {
        FileDialog *dialog = m_opener.newDialog();
        if (dialog == nullptr)
            return;
        dialog->setWindowTitle(request.title);
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        dialog->setNameFilters(request.filters);
        dialog->setLabelText(QFileDialog::Accept, FileDialog::tr("Save"));
        dialog->selectFile(request.name);
        QObject::connect(dialog, &QDialog::accepted, dialog, [dialog, chosen = std::move(chosen)] {
            if (auto file = dialog->chosenPath())
                chosen(targetOf(*dialog, std::move(*file)));
        });
        dialog->open();
    }

private:
    FileDialogOpener m_opener;
};

} // namespace

std::unique_ptr<FileSaver> platformFileSaver(const QUrl &startFolder)
{
    return std::make_unique<PlatformFileSaver>(startFolder);
}

} // namespace Loadwick
