"""What is planted: each operator yields (start, end, replacement) in a source's text."""

import re

RELATIONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "<<": ">>", ">>": "<<", "&": "|"}
ARITHMETIC |= {"+=": "-=", "-=": "+=", "*=": "/=", "/=": "*="}
LOGICAL = {"&&": "||", "||": "&&"}
LOCKS = {"lock_guard", "scoped_lock", "unique_lock", "shared_lock"}
NO_CALL = {"return", "throw", "if", "for", "while", "switch", "do", "else", "case", "default", "using"}
# Where the condition of "a ? b : c" begins.
BEFORE_CHOICE = {"=", "+=", "return", "(", ",", "{", "[", ";", "?", ":", "}"}


def replaced(source, table):
    """Every operator of the table with two operands, of which none is a literal text."""
    for index, token in enumerate(source.tokens):
        if token.text in table and token.kind == "sign" and source.is_spaced(index):
            if "text" not in {source.tokens[index - 1].kind, source.tokens[index + 1].kind}:
                yield index, index + 1, table[token.text]


def relation(source):
    yield from replaced(source, RELATIONS)


def arithmetic(source):
    yield from replaced(source, ARITHMETIC)
    for index, token in enumerate(source.tokens):
        if token.text in {"++", "--"}:
            yield index, index + 1, "--" if token.text == "++" else "++"


def logical(source):
    yield from replaced(source, LOGICAL)
    for index, token in enumerate(source.tokens):
        if token.text == "!" and source.at(index + 1) != "!":
            yield index, index + 1, ""


def negated(source, first, end):
    return first, end, f"!({source.between(first, end)})"


def condition(source):
    for index, token in enumerate(source.tokens):
        opening = index + 1 + (source.at(index + 1) == "constexpr")
        if token.text in {"if", "while"} and source.at(opening) == "(":
            first, end = source.split(opening, ";")[-1]
            if "=" not in source.shape(first, end).replace("==", "").replace("!=", ""):
                yield negated(source, first, end)
        if token.text == "?":
            first = index
            while source.at(first - 1) not in BEFORE_CHOICE:
                first = source.tokens[first - 1].partner if source.at(first - 1) in {")", "]"} else first - 1
            yield negated(source, first, index)


def other_number(text):
    if match := re.fullmatch(r"([\d']+)(ns|us|ms|s|min|h)", text):
        return "0" + match[2] if match[1] != "0" else "1" + match[2]
    if re.fullmatch(r"0[0-7]+", text):
        return f"0{int(text, 8) + 1:o}"
    if match := re.fullmatch(r"(\d[\d']*)([uUlLzZ]*)", text):
        value = int(match[1].replace("'", ""))
        return f"{0 if value == 1 else value + 1}{match[2]}"
    if match := re.fullmatch(r"0[xX]([\da-fA-F']+)([uUlLzZ]*)", text):
        return f"{int(match[1].replace(chr(39), ''), 16) + 1:#x}{match[2]}"
    if match := re.fullmatch(r"(\d[\d']*\.\d*(?:[eE][+-]?\d+)?)([fFlL]?)", text):
        return f"{float(match[1].replace(chr(39), '')) + 1}{match[2]}"
    return None


def constant(source):
    for index, token in enumerate(source.tokens):
        other = None
        if token.kind == "number":
            other = other_number(token.text)
        elif token.kind == "character":
            follower = chr(ord(token.text[1]) + 1)
            other = f"'{follower}'" if len(token.text) == 3 and follower not in "'\\" else "'x'"
        elif token.text in {"true", "false"}:
            other = "false" if token.text == "true" else "true"
        if other:
            yield index, index + 1, other


def text(source):
    for index, token in enumerate(source.tokens):
        if token.kind == "text" and source.at(index - 1) != "extern":
            quote = len(token.text) - 1
            if 'R"' in token.text[:4]:
                quote = token.text.rindex(")")
            yield index, index + 1, token.text[:quote] + "x" + token.text[quote:]


def call(source):
    for first, last in source.statements():
        if source.at(first) not in NO_CALL and re.fullmatch(r"\.?n(\.n|g|i)*g", source.shape(first, last)):
            yield first, last, ""


def lock(source):
    for first, last in source.statements():
        if LOCKS & {source.at(index) for index in range(first, min(first + 4, last))}:
            yield first, last, ""


def assignment(source):
    for first, last in source.statements():
        if re.fullmatch(r"\**\.?n(\.n|g|i)*=.*", source.shape(first, last)):
            yield first, last, ""


def flag(source):
    for index, token in enumerate(source.tokens):
        if token.text == "|" and source.is_spaced(index):
            end = index + 1
            while source.at(end) == "::" or source.tokens[end].kind == "name":
                end += 1
            if end > index + 1 and source.at(end) != "(":
                yield index, end, ""
            first = index
            while source.at(first - 1) == "::" or source.tokens[first - 1].kind == "name":
                first -= 1
            if first < index:
                yield first, index + 1, ""


def errno_check(source):
    for index, token in enumerate(source.tokens):
        if token.text == "errno" and source.at(index + 1) in {"==", "!="}:
            yield index, index + 3, "false" if source.at(index + 1) == "==" else "true"


def early_return(source):
    for first, last in source.statements():
        if source.at(first) == "return":
            block = source.tokens[first].inside
            if source.follows_condition(first) or source.follows_condition(block):
                yield first, last, ""


def loop_exit(source):
    for first, last in source.statements():
        if source.at(first) in {"break", "continue"}:
            yield first, last, ""


def is_of_no_other_type(source, first):
    return source.tokens[first].kind == "text" or source.at(first) == "["


def arguments(source):
    for index, token in enumerate(source.tokens):
        if token.text != "(" or source.tokens[index - 1].kind != "name" or not source.in_code(index):
            continue
        parts = source.split(index)
        for (first, middle), (second, end) in zip(parts, parts[1:]):
            left, right = source.between(first, middle), source.between(second, end)
            kinds = [is_of_no_other_type(source, part) for part in (first, second)]
            if left != right and kinds[0] == kinds[1]:
                yield first, end, f"{right}, {left}"


OPERATORS = [relation, condition, constant, arithmetic, logical, call, lock, assignment, flag]
OPERATORS += [errno_check, early_return, loop_exit, arguments, text]
