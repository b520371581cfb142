import QtQuick
import QtQuick.Layouts
import Loadwick

ColumnLayout {
    spacing: AppTheme.smallSpace

    RowLayout {
        Layout.fillWidth: true
        Layout.preferredHeight: 320
        spacing: AppTheme.cardSpace

        ScanEmptyState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 100
            title: "Start a context scan"
            detail: "Choose a local repository, then run one Claude Code probe."
            note: "One scan starts one real session, which counts against your plan as any other does."
        }
        ScanLoadingState { Layout.fillWidth: true; Layout.fillHeight: true; Layout.preferredWidth: 100 }
    }
    RowLayout {
        Layout.fillWidth: true
        Layout.preferredHeight: 320
        spacing: AppTheme.cardSpace

        ScanFailureState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 100
            headline: "The session failed"
            detail: "It ended with status 1."
        }
        ScanFailureState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 100
            headline: "The answer could not be read"
            detail: "Expected one JSON object. ".repeat(24)
        }
    }
}
