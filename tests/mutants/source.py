"""C++ as the operators need it: tokens, what brackets enclose, and where statements begin and end.

Blanks around an operator tell a relation from a template's bracket and a product from a pointer,
because clang-format lays out the whole tree. Code for other systems than Linux is left out.
"""

import re

TOKEN = re.compile(
    r"""(?P<skipped>\s+ | //[^\n]* | /\*.*?\*/
          | ^\#if[^\n]*__APPLE__.*?^\#(?:else|endif) | ^\#else.*?^\#endif | ^[ \t]*\#(?:[^\n\\]|\\.|\\\n)*)
      | (?P<text>(?:u8)?R"(?P<fence>[^(]*)\(.*?\)(?P=fence)" | (?:u8)?"(?:[^"\\\n]|\\.)*")
      | (?P<character>'(?:[^'\\\n]|\\.)+')
      | (?P<number>\d(?:[\w.]|'(?=\w)|(?<=[eE])[+-])*)
      | (?P<name>[A-Za-z_]\w*)
      | (?P<sign><=>|<<=|>>=|\.\.\.|->|::|\+\+|--|&&|\|\||[-+*/%&|^=!<>]=|<<|>>|.)""",
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)
PAIRS = {")": "(", "]": "[", "}": "{"}
CONDITIONAL = {"if", "for", "while", "switch"}
BEFORE_CODE = {")", "]", "}", "else", "do", "try", "const", "noexcept", "override", "mutable"}


class Token:
    def __init__(self, kind, text, start):
        self.kind, self.text, self.start = kind, text, start
        self.end = start + len(text)
        self.partner = None  # the index of the matching bracket
        self.inside = None  # the index of the enclosing bracket
        self.is_code = False  # of a brace: encloses statements


class Source:
    def __init__(self, text):
        self.text = text
        self.tokens = [
            Token(match.lastgroup, match.group(), match.start())
            for match in TOKEN.finditer(text)
            if match.lastgroup != "skipped"
        ]
        for token in self.tokens:
            token.kind = "text" if token.text.endswith('"') else token.kind
        self._match_brackets()
        self._drop_assertions()

    def at(self, index):
        """The text of a token, "" beyond the ends."""
        return self.tokens[index].text if 0 <= index < len(self.tokens) else ""

    def _match_brackets(self):
        open_brackets = []
        for index, token in enumerate(self.tokens):
            if token.kind == "sign" and token.text in PAIRS:
                partner = open_brackets.pop()
                assert self.at(partner) == PAIRS[token.text], f"unbalanced at {token.start}"
                token.partner, self.tokens[partner].partner = partner, index
            token.inside = open_brackets[-1] if open_brackets else None
            if token.kind == "sign" and token.text in PAIRS.values():
                token.is_code = token.text == "{" and self._opens_code(index)
                open_brackets.append(index)

    def _opens_code(self, index):
        head = []
        at = index - 1
        while at >= 0 and self.at(at) not in {";", "{", "}"}:
            head.append(self.at(at))
            at = self.tokens[at].partner - 1 if self.at(at) in {")", "]"} else at - 1
        if {"class", "struct", "union", "namespace", "enum"} & set(head):
            return False
        return self.at(index - 1) in BEFORE_CODE or "->" in head and ")" in head

    def _drop_assertions(self):
        """What the compiler itself checks is not planted in."""
        self.exempt = [
            range(index, self.tokens[index + 1].partner + 1)
            for index, token in enumerate(self.tokens)
            if token.text == "static_assert"
        ]

    def is_exempt(self, index):
        return any(index in exempt for exempt in self.exempt)

    def in_code(self, index):
        inside = self.tokens[index].inside
        while inside is not None and self.at(inside) != "{":
            inside = self.tokens[inside].inside
        return inside is not None and self.tokens[inside].is_code

    def follows_condition(self, index):
        """Whether the token begins what an if, a loop or an else governs, without braces."""
        if self.at(index - 1) == "else":
            return True
        if self.at(index - 1) != ")":
            return False
        before = self.tokens[index - 1].partner - 1
        return self.at(before - 1 if self.at(before) == "constexpr" else before) in CONDITIONAL

    def statements(self):
        """(first, last) of every statement that ends in a semicolon; last is the semicolon."""
        for index, token in enumerate(self.tokens):
            inside = token.inside
            if inside is None or not self.tokens[inside].is_code or token.text in "{};)]":
                continue
            if self.at(index - 1) in {";", "{", "}"} or self.follows_condition(index):
                last = self.end_of_statement(index)
                if last is not None:
                    yield index, last

    def end_of_statement(self, first):
        index = first
        while index < len(self.tokens):
            if self.at(index) == ";":
                return index
            if self.at(index) == "}" or self.tokens[index].is_code:
                return None
            index = self.after(index)
        return None

    def after(self, index):
        """The next token, behind what this one encloses."""
        return (self.tokens[index].partner if self.at(index) in PAIRS.values() else index) + 1

    def shape(self, first, end):
        """The tokens as letters: n a name, g a group in parentheses, i an index, the rest as they are."""
        letters = []
        index = first
        while index < end:
            token = self.tokens[index]
            letter = {"(": "g", "[": "i", "{": "b", "->": ".", "::": "."}.get(token.text, token.text)
            letters.append("n" if token.kind == "name" else letter if token.kind == "sign" else "v")
            index = self.after(index)
        return "".join(letters)

    def split(self, opening, separator=","):
        """The (first, end) of what the separator divides in a group."""
        parts, first, index = [], opening + 1, opening + 1
        closing = self.tokens[opening].partner
        while index < closing:
            if self.at(index) == separator:
                parts.append((first, index))
                first = index + 1
            index = self.after(index)
        return parts + [(first, closing)] if first < closing else parts

    def between(self, first, end):
        return self.text[self.tokens[first].start : self.tokens[end - 1].end]

    def is_spaced(self, index):
        """Whether blanks stand on both sides, as around an operator with two operands."""
        token = self.tokens[index]
        return self.text[token.start - 1].isspace() and self.text[token.end].isspace()
