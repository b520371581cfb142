import QtQuick
import QtQuick.Layouts
import Loadwick

// The scan's particulars, and its summary to take away.
ReportSurface {
    id: section

    required property OverviewPresenter overview

    RowLayout {
        Layout.alignment: Qt.AlignRight
        spacing: AppTheme.mediumSpace

        MomentaryNote {
            id: copied
            words: qsTr("Copied")
        }
        PushButton {
            title: qsTr("Copy Summary")
            symbol: "doc.on.doc"
            outlined: true
            onClicked: {
                section.overview.copySummary();
                copied.show();
            }
        }
    }
    CollapsibleSection {
        Layout.fillWidth: true
        title: qsTr("Session details")

        SessionDetails {
            Layout.fillWidth: true
            overview: section.overview
        }
    }
    Hairline { Layout.fillWidth: true }
    CollapsibleSection {
        Layout.fillWidth: true
        title: qsTr("Full report")
        detail: qsTr("A factual, copyable summary of this one Claude Code startup-context scan.")

        SelectableText {
            Layout.fillWidth: true
            text: section.overview.summary
        }
    }
}
