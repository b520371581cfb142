"""What the Overview says about the stand-in's session, and its tab order."""

from __future__ import annotations

from endtoend_case import CHOOSE, SCAN

# Everything that the page says about the stand-in's session and the files below, in page order.
HEADER = (
    "Overview",
    "Everything this Claude Code startup-context scan measured.",
    "Scan complete",
)
BAND = (
    "Heavy startup context",
    "The total measured by Claude is 42,318 tokens, which falls in the Heavy band (30,000–60,000).",
    "42,318",
    "tokens",
    "Authoritative · measured by Claude",
    "Lean",
    "Excessive",
    "Why these bands?",
)
HEADROOM = (
    "Context headroom",
    "52 of 100 — how much of the 90,000-token band scale is still free.",
    "Illustrative score — not a measurement",
    "Derived from the Heavy band position of the Claude-reported total. "
    "These bands are this app's opinion, not an industry standard.",
    "Illustrative score 52 of 100",
)
BREAKDOWN = (
    "Estimated breakdown by category",
    "Shares use the Claude-reported total; category rows are estimates.",
    "Hover a segment for its share.",
    "Category",
    "Tokens",
    "Share",
    "Source",
)
SELF_REPORTED = "self-reported by the session (estimate)"
ON_DISK = "measured on disk at ~4 bytes/token (estimate)"
ROWS = (
    ("system tools", "16,420", "38.8%", SELF_REPORTED),
    ("Unattributed", "8,620", "20.4%", "derived: total minus attributed"),
    ("mcp tools", "8,240", "19.5%", SELF_REPORTED),
    ("system prompt", "3,187", "7.5%", SELF_REPORTED),
    ("memory files (beyond local estimate)", "2,505", "5.9%", SELF_REPORTED),
    ("custom agents", "1,260", "3.0%", SELF_REPORTED),
    ("Repository instructions", "1,000", "2.4%", ON_DISK),
    ("Personal instructions", "600", "1.4%", ON_DISK),
    ("messages", "486", "1.1%", SELF_REPORTED),
)
FILES = (
    "All instruction files",
    "Grouped by where Claude Code loads them. Their contents are never displayed or persisted.",
    "Relative size",
    "Tile sizes use estimated token counts.",
    "Repository instructions",
    "4,000 bytes on disk · local estimate at 4 bytes/token",
    "2.4% of total",
    "Inherited project instructions",
    "No files found in this tier.",
    "Personal instructions",
    "2,400 bytes on disk · local estimate at 4 bytes/token",
    "1.4% of total",
    "Share is calculated against the authoritative total reported by Claude.",
    "Largest instruction files",
    "The top five by local estimate; every file is listed in the section above.",
    "File",
    "% of total",
)
WEEKLY = (
    "Weekly usage",
    "Supporting context from the local weekly KPI log.",
    "Median tokens/session",
    "27,510,400",
    "-62 versus target",
    "Tokens/PR",
    "37,681,169",
    "+1 versus target",
    "Window: 2026-02-23 – 2026-03-01",
    "Recorded: 2026-03-02T06:00:00Z",
    "Targets: halden-machine-config docs/data/token-kpi-baseline-2026-08-09.json (locked baseline)",
)
REPORT = (
    "Copy Summary",
    "Session details",
    "Full report",
    "A factual, copyable summary of this one Claude Code startup-context scan.",
    "Save Data…",
    "Save Report…",
)
PAGES = ("Overview", "Trends", "Compare")  # one stop for all, navigated by the arrow keys
TAB_ORDER = (
    CHOOSE,
    SCAN,
    "/webshop",
    "Band meter",
    "Why these bands?",
    "Donut chart",
    "system tools",
    "Relative size of",
    "4,000 bytes on disk",
    "2,400 bytes on disk",
    "Copy Summary",
    "Session details",
    "Full report",
    "Save Data…",
    "Save Report…",
)
CHARTS = 4  # meter, gauge, donut, treemap
