#include "support/DialogFixture.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTreeView>

namespace Loadwick {

DialogFixture::DialogFixture()
{
    qputenv("HOME", root().c_str());
    m_window.show();
}

DialogFixture::~DialogFixture()
{
    qputenv("HOME", m_home);
}

QUrl DialogFixture::url() const
{
    return QUrl::fromLocalFile(QString::fromStdString(root().string()));
}

QFileDialog *DialogFixture::dialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *dialog = qobject_cast<QFileDialog *>(widget); dialog && dialog->isVisible())
            return dialog;
    return nullptr;
}

QLineEdit &DialogFixture::nameField()
{
    return *dialog()->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
}

QPushButton &DialogFixture::button(QDialogButtonBox::StandardButton which)
{
    return *dialog()->findChild<QDialogButtonBox *>()->button(which);
}

QStringList DialogFixture::listedNames(int count)
{
    const auto *list = dialog()->findChild<QTreeView *>();
    const auto names = [list] {
        QStringList listed;
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
            listed += list->model()->index(row, 0, list->rootIndex()).data().toString();
        listed.sort();
        return listed;
    };
    (void)QTest::qWaitFor([&] { return names().size() == count; });
    return names();
}

void DialogFixture::type(const QByteArray &text) const
{
    nameField().setText(QString::fromUtf8(QByteArray(text).replace('$', root().c_str())));
}

void DialogFixture::press(Qt::Key key)
{
    QTest::keyClick(&nameField(), key);
}

DialogFixture::Question DialogFixture::pressEnterAndAnswer(QDialogButtonBox::StandardButton answer)
{
    Question question;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        poll.stop();
        question = {.words = box->text(), .isPlain = box->textFormat() == Qt::PlainText};
        box->button(static_cast<QMessageBox::StandardButton>(answer))->click();
    });
    poll.start(10);
    press(Qt::Key_Return); // returns when the question is answered
    return question;
}

std::unique_ptr<QTimer> DialogFixture::cancelOnce(QWidget *(*other)())
{
    auto poll = std::make_unique<QTimer>();
    QObject::connect(poll.get(), &QTimer::timeout, poll.get(), [other, poll = poll.get()] {
        if (QWidget *found = other(); found != nullptr && found != dialog()) {
            poll->stop();
            button(QDialogButtonBox::Cancel).click();
        }
    });
    poll->start(10);
    return poll;
}

} // namespace Loadwick
