import QtQuick
import QtQuick.Layouts
import Loadwick

// The chosen repository, where it is, and how its scan stands.
ColumnLayout {
    id: repository

    required property ContentPresenter content

    spacing: AppTheme.smallSpace

    RowLayout {
        Layout.fillWidth: true
        spacing: AppTheme.smallSpace

        Symbol {
            name: "folder.fill"
            tint: repository.content.hasRepository ? AppTheme.accent : AppTheme.secondaryText
        }
        ElidedLabel {
            Layout.fillWidth: true
            text: repository.content.repositoryName
            font: AppTheme.emphasisFont
        }
    }
    Loader {
        id: path

        Layout.fillWidth: true
        active: repository.content.hasRepository
        visible: active
        Component.onCompleted: path.setSource("RepositoryPath.qml", { content: repository.content })
    }
    PlainLabel {
        Layout.fillWidth: true
        text: repository.content.repositoryDetail
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
        visible: !repository.content.hasRepository
    }
    StatusPill {
        Layout.topMargin: AppTheme.tightSpace
        title: repository.content.statusTitle
        symbol: repository.content.statusSymbol
        turning: repository.content.status === ContentPresenter.Scanning
        tint: {
            switch (repository.content.status) {
            case ContentPresenter.Scanning: return AppTheme.accent;
            case ContentPresenter.Failed: return AppTheme.bandExcessiveText;
            case ContentPresenter.Complete: return AppTheme.bandLeanText;
            default: return AppTheme.secondaryText;
            }
        }
    }
}
