#!/usr/bin/env python3
"""Shows Doxygen the comments of a header, which are plain // comments, as the documentation they are.

A block directly above a declaration is its documentation, and so is the comment behind one. A comment at the head of
a paragraph that says "Each", "Both" or "These" speaks of all that follow without a word of their own, up to the next
blank line. A property's getter and setter, an enumerator, a field, what is made, copied, compared or converted need no
words beside those of their class: these get an empty documentation. What is left is told by Doxygen as undocumented.
No line moves.
"""

import re
import sys

# By the class: properties, what is made, validated, copied or converted, and in the platform what bears the name of a
# Windows function. By the names: where the failures of a domain come from.
TOLD_BY_THE_CLASS = re.compile(
    r"\b(?:get|set|is|has|validate|MK_Create)_\w+\s*\(|\bclone\s*\(|\boperator\b|\w\s*\(\s*\)\s*const\b"
    r"|\b[A-Z][a-z]+[A-Z]\w*\s*\(|\bPX_Source px_std_\w+_source\b|^using\b|\bnaming\b|\bcopy_properties_to\b"
    r"|^(?:explicit\s+|virtual\s+|constexpr\s+)*~?\w+\s*\([^()]*\)\s*(?:override|noexcept)?\s*(?:=\s*\w+)?\s*[;:{]")
STANDARD_CLASS = re.compile(r"^class (?:PX_EXPORT )?PX_Std_(\w+)")
NO_DECLARATION = re.compile(r"^(?:friend (?:class|struct)\b|static_assert\b|(?:public|protected|private)\s*:)"
                            r"|^(?:template\s*<.*>\s*)?(?:class|struct|enum)\s+[\w: ]+;")
SCOPE = re.compile(r"^(?:template\s*<.*>\s*)?(?:(?:class|struct|union|enum|namespace)\b|extern\s*\"C\"\s*$)")
TOKEN = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'|\n|[{};,():]|[^\S\n]+'
                   r'|[^\s{};,():"\'/]+|.', re.DOTALL)
OF_ALL = re.compile(r"(?:Each|Both|These)\b")
EMPTY = "/** &zwj; */ "


def words(line):
    """A line of a comment as Doxygen takes it for plain words: code stands between backquotes or is indented."""
    if line.startswith("     "):
        return line
    parts = re.split(r"(`[^`]*`)", line)
    return "".join(part if part.startswith("`") else re.sub(r"([\\@<>&#%|])", r"\\\1", part) for part in parts)


class Declaration:
    def __init__(self, line, scope):
        self.line, self.last, self.scope, self.text = line, line, scope, ""


def declarations(text):
    """Every declaration with its first and last line, in namespaces and classes; and the lines that are nothing but a
    comment outside of functions."""
    found, comments, scopes, current = [], set(), ["namespace"], None
    line, round_brackets, behind_body = 0, 0, False
    at_start = True
    for token in TOKEN.findall(text):
        if token == "\n":
            line += 1
            at_start = True
            continue
        if token.startswith("//"):
            if at_start and scopes[-1] != "body":
                comments.add(line)
            continue
        if token.isspace():
            continue
        if token.startswith("/*"):
            line += token.count("\n")
            continue
        at_start = False
        if scopes[-1] == "body":
            if token == "{":
                scopes.append("body")
            elif token == "}":
                scopes.pop()
                behind_body = scopes[-1] != "body"
                if behind_body:
                    current.last = line
            continue
        if behind_body:
            behind_body = False
            if token not in (";", ",", "{", "(", ")"):
                current = None
        if current is None:
            if token in (";", ","):
                continue
            if token == "}":
                scopes.pop()
                continue
            current = Declaration(line, scopes[-1])
            found.append(current)
        if token == "(":
            round_brackets += 1
        elif token == ")":
            round_brackets -= 1
        elif token == "{":
            is_scope = not round_brackets and SCOPE.match(current.text.strip())
            if is_scope:
                current.text += token
                scopes.append("enum" if re.search(r"\benum\b", current.text) else "class")
                current = None
            else:
                scopes.append("body")
                current.text += "{"
            continue
        elif token == "}" and not round_brackets:  # behind the last enumerator
            scopes.pop()
            current = None
            continue
        current.last = line
        current.text += token if token in "();,:" else " " + token
        over = token == ";" or token == "," and current.scope == "enum"
        over = over or token == ":" and re.fullmatch(r"\s*(?:public|protected|private)\s*:", current.text)
        if over and not round_brackets:
            current = None
    return found, comments


def without_preprocessor(lines):
    """The lines, those of the preprocessor blank."""
    code, goes_on = [], False
    for line in lines:
        goes_on_before, goes_on = goes_on, (goes_on or line.lstrip().startswith("#")) and line.endswith("\\")
        code.append("" if goes_on_before or line.lstrip().startswith("#") else line)
    return code


class Header:
    def __init__(self, text):
        self.lines = text.split("\n")
        self.result = list(self.lines)
        found, self.comments = declarations("\n".join(without_preprocessor(self.lines)))
        self.starts = {}
        for declaration in found:
            self.starts.setdefault(declaration.line, declaration)
        self.begin_paragraph()

    def begin_paragraph(self):
        self.of_all = ""  # what its head says of each
        self.last_name, self.last_words = "", ""  # the function that has words, and these

    def block_above(self, line):
        first = line
        while first - 1 in self.comments:
            first -= 1
        return range(first, line)

    def take_block(self, block):
        """Makes a block documentation, and gives its words."""
        said = [self.lines[i].strip()[2:] for i in block]
        for i, line in zip(block, said):
            self.result[i] = "///" + words(line)
        return " ".join(said).strip()

    def take(self, declaration):
        said = declaration.text.strip()
        if NO_DECLARATION.match(said) or said == "}":
            return
        block = self.block_above(declaration.line)
        if block:
            self.last_name, self.last_words = name_of(said), self.take_block(block)
            before = self.lines[block[0] - 1].rstrip() if block[0] else ""
            if not before or before.endswith((":", "{")):
                self.of_all = self.last_words if OF_ALL.match(self.last_words) else ""
            return
        behind = re.match(r"^(.*?[;,{}]|\s*\w+)(\s*)//(.*)$", self.lines[declaration.last])
        if behind:
            self.result[declaration.last] = behind[1] + behind[2] + "///<" + words(behind[3])
            return
        line = self.result[declaration.line]
        indent = len(line) - len(line.lstrip())
        self.result[declaration.line] = line[:indent] + self.words_for(declaration, said) + line[indent:]

    def words_for(self, declaration, said):
        """For a declaration without a word of its own."""
        standard = STANDARD_CLASS.match(said)
        if standard:
            return f"/** The standard PX_{standard[1]}. */ "
        if self.last_name and name_of(said) == self.last_name:
            return f"/** {words(self.last_words)} */ "
        if self.of_all:
            return f"/** {words(self.of_all)} */ "
        return EMPTY if is_told_by_its_class(declaration, said) else ""

    def filtered(self):
        for line, content in enumerate(self.lines):
            if not content.strip():
                self.begin_paragraph()
            if content.startswith("#define"):
                self.take_block(self.block_above(line))
            if line in self.starts:
                self.take(self.starts[line])
        self.result[0] = "/** @file */ " + self.result[0]
        return "\n".join(self.result)


def name_of(said):
    """Of a function: the next ones of the same name are told by the words of the first."""
    found = re.match(r"[^(]*?(\w+)\s*\(", said)
    return found[1] if found else ""


def is_told_by_its_class(declaration, said):
    if declaration.scope == "enum":
        return True
    if declaration.scope == "class" and ("(" not in said and not SCOPE.match(said) or said.startswith("enum Enum")):
        return True
    return TOLD_BY_THE_CLASS.search(said) is not None


if __name__ == "__main__":
    with open(sys.argv[1], encoding="utf-8") as header:
        sys.stdout.write(Header(header.read()).filtered())
