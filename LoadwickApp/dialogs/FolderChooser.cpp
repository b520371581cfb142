#include "dialogs/FolderChooser.h"

#include <utility>

#include "dialogs/FileDialog.h"

namespace Loadwick {
namespace {

class PlatformFolderChooser final : public FolderChooser
{
public:
    explicit PlatformFolderChooser(const QUrl &startFolder) : m_opener(startFolder) {}

    void attach(QWindow &window) override { m_opener.attach(window); }

    void open(Chosen chosen) override
    {
        FileDialog *dialog = m_opener.newDialog();
        if (dialog == nullptr)
            return;
        dialog->setWindowTitle(FileDialog::tr("Choose a local repository to scan."));
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        dialog->setOption(QFileDialog::ReadOnly);
        dialog->setLabelText(QFileDialog::Accept, FileDialog::tr("Choose"));
        QObject::connect(dialog, &QDialog::accepted, dialog, [dialog, chosen = std::move(chosen)] {
            if (const auto folder = dialog->chosenPath())
                chosen(*folder);
        });
        dialog->open();
    }

private:
    FileDialogOpener m_opener;
};

} // namespace

std::unique_ptr<FolderChooser> platformFolderChooser(const QUrl &startFolder)
{
    return std::make_unique<PlatformFolderChooser>(startFolder);
}

} // namespace Loadwick
