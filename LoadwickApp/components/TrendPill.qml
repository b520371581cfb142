import QtQuick
import Loadwick

// How a repository's total changed between its two most recent scans. Growth is coloured as a
// warning and shrinkage as good news; a first scan has nothing to compare with and says so.
Rectangle {
    id: pill

    required property int kind
    required property string title
    required property string symbol
    readonly property bool isFirstScan: pill.kind === TrendKind.FirstScan
    readonly property color tint: {
        switch (pill.kind) {
        case TrendKind.Grew: return AppTheme.bandHeavyText;
        case TrendKind.Shrank: return AppTheme.bandLeanText;
        default: return AppTheme.secondaryText;
        }
    }

    implicitWidth: line.implicitWidth + 2 * AppTheme.smallSpace
    implicitHeight: line.implicitHeight + 2 * AppTheme.tightSpace
    radius: height / 2
    color: pill.isFirstScan ? AppTheme.quietFill : Qt.alpha(pill.tint, AppTheme.tintOpacity)

    Row {
        id: line

        anchors.centerIn: parent
        spacing: AppTheme.tightSpace + 1

        Symbol {
            objectName: "symbol"
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14
            name: pill.symbol
            tint: pill.tint
            visible: !pill.isFirstScan
        }
        PlainLabel {
            objectName: "label"
            anchors.verticalCenter: parent.verticalCenter
            text: pill.title
            font: pill.isFirstScan ? AppTheme.captionFont : AppTheme.subheadlineStrongFont
            color: pill.tint
        }
    }
}
