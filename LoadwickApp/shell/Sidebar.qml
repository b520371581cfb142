import QtQuick
import QtQuick.Layouts
import Loadwick

// The chosen repository, the state of its scan, and the pages.
Rectangle {
    id: sidebar

    required property ContentPresenter content
    readonly property alias pages: pages
    readonly property alias name: name
    readonly property color statusTint: {
        switch (sidebar.content.status) {
        case ContentPresenter.Scanning: return AppTheme.accent;
        case ContentPresenter.Failed: return AppTheme.bandExcessiveText;
        case ContentPresenter.Complete: return AppTheme.bandLeanText;
        default: return AppTheme.secondaryText;
        }
    }

    color: AppTheme.sidebar

    ColumnLayout {
        anchors { fill: parent; topMargin: AppTheme.cardSpace }
        spacing: 0

        ColumnLayout {
            Layout.fillWidth: true
            Layout.leftMargin: AppTheme.cardSpace
            Layout.rightMargin: AppTheme.cardSpace
            spacing: AppTheme.smallSpace

            RowLayout {
                Layout.fillWidth: true
                spacing: AppTheme.smallSpace

                Symbol {
                    name: "folder.fill"
                    tint: sidebar.content.hasRepository ? AppTheme.accent : AppTheme.secondaryText
                }
                PlainLabel {
                    id: name

                    Layout.fillWidth: true
                    text: sidebar.content.repositoryName
                    font: AppTheme.emphasisFont
                    // A name is cut, our own words wrap.
                    elide: Text.ElideMiddle
                    wrapMode: sidebar.content.hasRepository ? Text.NoWrap : Text.Wrap
                    maximumLineCount: sidebar.content.hasRepository ? 1 : 3
                    Accessible.name: text

                    HoverTip { words: name.truncated ? name.text : "" }
                }
            }
            Loader {
                id: path

                Layout.fillWidth: true
                active: sidebar.content.hasRepository
                visible: active
                Component.onCompleted: path.setSource("RepositoryPath.qml", { content: sidebar.content })
            }
            PlainLabel {
                Layout.fillWidth: true
                text: sidebar.content.repositoryDetail
                font: AppTheme.captionFont
                secondary: true
                wrapMode: Text.Wrap
                visible: !sidebar.content.hasRepository
            }
            StatusPill {
                Layout.topMargin: AppTheme.tightSpace
                title: sidebar.content.statusTitle
                symbol: sidebar.content.statusSymbol
                turning: sidebar.content.status === ContentPresenter.Scanning
                tint: sidebar.statusTint
            }
        }
        TitleLabel {
            Layout.fillWidth: true
            Layout.leftMargin: AppTheme.cardSpace
            Layout.topMargin: AppTheme.pageMargin
            Layout.bottomMargin: AppTheme.tightSpace
            text: qsTr("Pages")
            font: AppTheme.captionStrongFont
            color: AppTheme.secondaryText
        }
        SidebarPages {
            id: pages

            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.leftMargin: AppTheme.smallSpace
            Layout.rightMargin: AppTheme.smallSpace
            content: sidebar.content
        }
    }
}
