import QtQuick
import Loadwick

// Where the chosen repository is, on two lines at most.
SelectableText {
    id: path

    required property ContentPresenter content

    text: path.content.repositoryDetail
    font: AppTheme.captionFont
    secondary: true
    maximumLineCount: 2

    HoverHandler { id: pointer }
    LateToolTip {
        words: path.text
        wanted: pointer.hovered && path.truncated
    }
}
