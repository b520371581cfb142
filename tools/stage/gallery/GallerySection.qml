import QtQuick
import QtQuick.Layouts
import Loadwick

// One kind of components under its name.
ColumnLayout {
    id: section

    required property string title

    Layout.fillWidth: true
    spacing: AppTheme.cardSpace

    PlainLabel {
        text: section.title
        font: AppTheme.title2Font
    }
}
