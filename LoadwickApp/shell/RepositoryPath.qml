import QtQuick
import Loadwick

// The chosen repository's path, on two lines at most.
SelectableText {
    id: path

    required property ContentPresenter content

    text: path.content.repositoryDetail
    font: AppTheme.captionFont
    secondary: true
    maximumLineCount: 2

    HoverTip { words: path.truncated ? path.text : "" }
}
