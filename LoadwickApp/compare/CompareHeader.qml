import Loadwick

PageHeader {
    title: qsTr("Compare")
    detail: qsTr("The latest recorded scan of each repository, side by side, category for category.")
}
