// Where the recorded data lies, on the page of the real window.
#include <QAccessible>
#include <QTest>

#include "shell/ContentPresenter.h"
#include "support/TestRegistry.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

const auto showInFolder = QStringLiteral("Show in Folder");

} // namespace

class RecordedDataCardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_shown = std::make_unique<WindowFixture>();
        m_shown->loadwick().content().setPageIndex(1);
        m_folder = m_shown->folder().path() / "history";
        m_file = QString::fromStdString((m_folder / "scan-history.json").string());
    }

    void cleanup() { m_shown.reset(); }

    void namesTheFileInATextToCopy()
    {
        QVERIFY(m_shown->shows(m_file));
        QCOMPARE(m_shown->find(m_file)->role(), QAccessible::EditableText);
    }

    void showsTheFileInItsFolder()
    {
        QVERIFY(!m_shown->isPressable(showInFolder)); // nothing is recorded
        m_shown->scan(m_shown->folder().path());
        m_shown->loadwick().content().setPageIndex(1);
        m_shown->pressButton(showInFolder);
        m_shown->finishScan(); // runs what is asked in the background
        QCOMPARE(m_shown->desktop().opened,
                 QList<QUrl>{QUrl::fromLocalFile(QString::fromStdString(m_folder.string()))});
    }

    void saysWhyItShowsNothing()
    {
        const auto gone = QStringLiteral("This file is gone.");
        m_shown->scan(m_shown->folder().path());
        m_shown->loadwick().content().setPageIndex(1);
        std::filesystem::remove(m_file.toStdString());
        m_shown->pressButton(showInFolder);
        m_shown->finishScan();
        QVERIFY(m_shown->shows(gone));
    }

private:
    std::unique_ptr<WindowFixture> m_shown;
    std::filesystem::path m_folder;
    QString m_file;
};

const RegisteredTest<RecordedDataCardTest> registered("RecordedDataCard");

} // namespace Loadwick

#include "RecordedDataCardTest.moc"
