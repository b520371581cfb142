import QtQuick
import Loadwick

PageHeader {
    title: "Compare"
    detail: "The latest recorded scan of each repository, side by side, category for category."
}
