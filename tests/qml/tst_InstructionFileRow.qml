import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 700
    height: 400

    InstructionFileRow {
        id: readable
        width: 600
        height: 52
        index: 0
        path: "/srv/" + "folder/".repeat(30) + "CLAUDE.md"
        size: "4,936 bytes on disk · local estimate at 4 bytes/token"
        amount: "12,345,678 tokens"
        share: "100.0% of total"
        isReadable: true
        words: "all of it"
        importer: ""
        chain: ""
    }
    InstructionFileRow {
        id: unreadable
        y: 60
        width: 600
        height: 52
        index: 1
        path: "/srv/CLAUDE.md"
        size: "Could not be read"
        amount: ""
        share: ""
        isReadable: false
        words: "/srv/CLAUDE.md. Could not be read."
        importer: ""
        chain: ""
    }
    InstructionFileRow {
        id: narrow
        y: 170
        width: 400
        height: 88
        index: 2
        path: "/srv/CLAUDE.md"
        size: "12,345,678 bytes on disk · local estimate at 4 bytes/token"
        amount: "3,086,420 tokens"
        share: "100.0% of total"
        isReadable: true
        words: "all of it"
        importer: "imported by " + "folder/".repeat(30) + "style.md"
        chain: "the whole chain"
    }
    InstructionFileRow {
        id: imported
        y: 300
        width: 600
        height: 70
        index: 3
        path: "/srv/docs/style.md"
        size: "4 bytes on disk"
        amount: "1 token"
        share: "0.1% of total"
        isReadable: true
        words: "all of it"
        importer: "imported by CLAUDE.md"
        chain: "imported by CLAUDE.md"
    }
    Repeater {
        id: mirrored
        model: ["1 token", "3,086,420 tokens"]

        InstructionFileRow {
            required property string modelData

            LayoutMirroring.enabled: true
            LayoutMirroring.childrenInherit: true
            y: 240
            width: 600
            height: 52
            path: "/srv/CLAUDE.md"
            size: "4 bytes on disk"
            amount: modelData
            share: "0.1% of total"
            isReadable: true
            words: "all of it"
            importer: ""
            chain: ""
        }
    }
    LargestFilesSection.Cells {
        id: cells
        y: 120
        width: 600
        height: 36
        file: "/srv/" + "folder/".repeat(30) + "CLAUDE.md"
        tokens: "1,234,567"
        share: "100.0% of total"
    }

    TestCase {
        name: "InstructionFileRow"
        when: windowShown

        function end(item) {
            return item.mapToItem(scene, item.width, 0).x;
        }

        function test_itsFiguresEndAtItsEdge() {
            for (const name of ["amount", "share"]) {
                const label = findChild(readable, name);
                compare(end(label), 600);
                verify(label.implicitWidth <= label.width, name);
                compare(label.horizontalAlignment, Text.AlignRight);
            }
        }

        function test_figuresEndInOneColumnFromRightToLeftToo() {
            const edges = [0, 1].map(row => end(findChild(mirrored.itemAt(row), "amount")));
            compare(edges[0], edges[1]);
            verify(edges[0] < 300);
        }

        function test_aLongPathDoesNotOverlapTheFigures() {
            const path = findChild(readable, "path");
            verify(path.truncated);
            verify(end(path) < findChild(readable, "amount").mapToItem(scene, 0, 0).x);
        }

        function test_wrapsTheSizeInANarrowRow() {
            const size = findChild(narrow, "size");
            verify(!size.truncated);
            compare(size.lineCount, 2);
            const importer = findChild(narrow, "importer");
            verify(size.mapToItem(narrow, 0, size.height).y <= importer.mapToItem(narrow, 0, 0).y);
            verify(importer.mapToItem(narrow, 0, importer.height).y <= narrow.height);
            verify(importer.truncated);
        }

        function tipOver(row) {
            const importer = findChild(row, "importer");
            mouseMove(importer, 5, importer.height / 2);
            const tip = findChild(importer, "tip");
            tryVerify(() => tip.hovered);
            return tip.words;
        }

        function test_theTipSaysWhatTheLineDoesNot() {
            compare(tipOver(narrow), "the whole chain");
            compare(tipOver(imported), "");
        }

        function test_aFileWithoutAnImporterHasNoLineForIt() {
            verify(!findChild(readable, "importer").visible);
            verify(findChild(imported, "importer").visible);
        }

        function test_aFileThatCouldNotBeReadHasNoFigures() {
            verify(!findChild(unreadable, "amount").visible);
            compare(findChild(unreadable, "size").text, "Could not be read");
            compare(end(findChild(unreadable, "path")), 600);
        }

        function test_isOneItemForAScreenReader() {
            compare(readable.Accessible.role, Accessible.ListItem);
            compare(readable.Accessible.name, "all of it");
        }

        function test_theNumericColumnsAre72WideAndEndAtOneEdge() {
            for (const name of ["tokens", "share"])
                compare(findChild(cells, name).width, 72);
            compare(end(findChild(cells, "share")), 600);
        }

        function test_aShareInWordsDoesNotReachTheTokens() {
            const share = findChild(cells, "share");
            const tokens = findChild(cells, "tokens");
            verify(end(share) - share.implicitWidth > end(tokens) + 4);
        }
    }
}
