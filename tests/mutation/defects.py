"""Plants a single defect into a source text: what a slip of the hand would make of it."""
import dataclasses
import difflib
import random
import re

TOKENS = re.compile(
    r"(?P<skipped>//[^\n]*|/\*.*?\*/|^[ \t]*\#(?:[^\n\\]|\\.)*|R\"\(.*?\)\")"
    r"|(?P<text>\"(?:[^\"\\\n]|\\.)*\"|'(?:[^'\\\n]|\\.)*')"
    r"|(?P<name>[A-Za-z_]\w*)"
    r"|(?P<number>(?:0[xX][0-9A-Fa-f']+|(?:\d[\d']*\.?\d*|\.\d+)(?:[eE][+-]?\d+)?)[uUlLfF]*)"
    r"|(?P<operator><=>|<<=|>>=|->\*|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|::|[-+*/%&|^<>!=~?:;,.(){}\[\]])"
    r"|(?P<space>\s+)",
    re.DOTALL | re.MULTILINE)

# With a space on both sides these are operators; `a<b>` and `T& x` are none.
OPERATORS = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&",
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "&": "|", "|": "&", "+=": "-=", "-=": "+=", "|=": "&=",
    "&=": "|=",
}
RULES = {
    "Length": "UnscaledLength", "UnscaledLength": "Length", "Feed": "Length", "Angle": "Percent", "Percent": "Angle",
    "WhileConstant": "Always", "Always": "Never", "Never": "Always", "kNotNegative": "kAnyReal",
    "kAnyReal": "kNotNegative",
}
# A table's row, and what is said of one in a line of its own.
ROW = re.compile(r"^[ \t]+(?:ON_\w+\(|(?:[A-Z]\w*)(?:<[^\n>]*>)?\([^\n]*|\{[^\n]*\},?$)", re.MULTILINE)
TRAIT = re.compile(r"^[ \t]+\.\w+", re.MULTILINE)
CALL = re.compile(r"^[ \t]+(?:[A-Za-z_]\w*(?:\.|->|::))*[A-Za-z_]\w*\(", re.MULTILINE)
ASSIGNMENT = re.compile(r"^[ \t]+[\w.\->\[\]]+ [-+|&]?= [^\n]*;$", re.MULTILINE)
# Dropping it changes nothing: the base class takes no part in the exchange.
IDLE_CALL = re.compile(r"CNCDialog::DoDataExchange\b")
NO_CALLS = {"static_assert", "return", "if", "while", "for", "switch", "sizeof", "assert", "ASSERT", "TRACE"}

# How often each is chosen, however many places there are for it.
WEIGHTS = {"operator": 3, "condition": 4, "not": 1, "truth": 2, "constant": 2, "id": 2, "text": 1, "rule": 1, "row": 2,
           "trait": 2, "call": 4, "assignment": 2, "step": 1}


@dataclasses.dataclass(frozen=True)
class Defect:
    path: str
    kind: str
    begin: int
    end: int
    replacement: str

    def planted_in(self, text):
        return text[:self.begin] + self.replacement + text[self.end:]

    def patch(self, text):
        return "".join(difflib.unified_diff(text.splitlines(True), self.planted_in(text).splitlines(True),
                                            "a/" + self.path, "b/" + self.path, n=2))

    def line(self, text):
        return text.count("\n", 0, self.begin) + 1


def closing(tokens, index):
    """The index of the token that closes the bracket at this index."""
    depth = 0
    for at in range(index, len(tokens)):
        if tokens[at].group() in ("(", "{", "["):
            depth += 1
        elif tokens[at].group() in (")", "}", "]"):
            depth -= 1
            if depth == 0:
                return at
    return None


def number_changed(number):
    hexadecimal = re.match(r"0[xX][0-9A-Fa-f']+", number)
    if hexadecimal:
        return hex(int(hexadecimal.group().replace("'", ""), 16) + 1)
    plain = number.rstrip("uUlLfF")
    suffix, plain = number[len(plain):], plain.replace("'", "")
    if re.fullmatch(r"0|[1-9]\d*", plain):
        return str(int(plain) + 1) + suffix
    return repr(float(plain) * 2 if float(plain) else 1.0)


class Source:
    """One source with all defects that can be planted into it."""

    def __init__(self, path, text):
        self.path, self.text = path, text
        self.tokens = [token for token in TOKENS.finditer(text) if token.lastgroup not in ("space", "skipped")]
        self.starts = {token.start(): at for at, token in enumerate(self.tokens)}
        self.defects = []
        self.unseen = self.of_static_asserts()
        self.of_tokens()
        self.of_conditions()
        self.of_lines()
        self.defects = [defect for defect in self.defects
                        if not any(begin <= defect.begin < end for begin, end in self.unseen)]

    def of_static_asserts(self):
        spans = []
        for at, token in enumerate(self.tokens):
            if token.group() == "static_assert":
                end = closing(self.tokens, at + 1)
                spans.append((token.start(), self.tokens[end].end()))
        return spans

    def plant(self, kind, begin, end, replacement):
        self.defects.append(Defect(self.path, kind, begin, end, replacement))

    def is_apart(self, token):
        return self.text[token.start() - 1].isspace() and self.text[token.end()].isspace()

    def of_tokens(self):
        kinds = self.names_by_kind()
        for at, token in enumerate(self.tokens):
            what = token.group()
            begin, end = token.span()
            if token.lastgroup == "operator":
                if what in OPERATORS and self.is_apart(token):
                    self.plant("operator", begin, end, OPERATORS[what])
                elif what == "!":
                    self.plant("not", begin, end, "")
                elif what in ("++", "--"):
                    self.plant("step", begin, end, "--" if what == "++" else "++")
            elif token.lastgroup == "number":
                changed = number_changed(what)
                if changed:
                    self.plant("constant", begin, end, changed)
            elif token.lastgroup == "text" and what[0] == '"' and what.isascii():
                if at and self.tokens[at - 1].group() != "include":
                    self.plant("text", begin, end, what[:-1] + 'x"')
            elif what in ("true", "false"):
                self.plant("truth", begin, end, "false" if what == "true" else "true")
            elif what in RULES:
                self.plant("rule", begin, end, RULES[what])
            elif self.kind_of_name(what):
                others = kinds[self.kind_of_name(what)]
                if len(others) > 1:
                    self.plant("id", begin, end, others[(others.index(what) + 1) % len(others)])

    @staticmethod
    def kind_of_name(name):
        """Names of one kind stand for one another: the ids of controls, the topics, the texts."""
        if re.fullmatch(r"ID[A-Z]*_\w+", name):
            return name.split("_")[0]
        constant = re.fullmatch(r"k[A-Z]\w*?([A-Z][a-z]+)", name)
        return "k" + constant.group(1) if constant else None

    def names_by_kind(self):
        kinds = {}
        for token in self.tokens:
            kind = token.lastgroup == "name" and self.kind_of_name(token.group())
            if kind and token.group() not in kinds.setdefault(kind, []):
                kinds[kind].append(token.group())
        return kinds

    def of_conditions(self):
        for at, token in enumerate(self.tokens[:-1]):
            if token.group() not in ("if", "while") or self.tokens[at + 1].group() != "(":
                continue
            end = closing(self.tokens, at + 1)
            if end is None or any(inner.group() == ";" for inner in self.tokens[at + 2:end]):
                continue
            condition = self.text[self.tokens[at + 1].end():self.tokens[end].start()]
            if self.tokens[at + 2].lastgroup == "name" and re.match(r"(const )?[\w:<>*& ]+ =[^=]", condition):
                continue # it declares what it asks for
            span = self.tokens[at + 1].end(), self.tokens[end].start()
            self.plant("condition", *span, f"!({condition})")
            self.plant("condition", *span, f"false && ({condition})")
            if token.group() == "if":
                self.plant("condition", *span, f"true || ({condition})")

    def statement_end(self, begin):
        """Where the statement or row that starts here ends, after its `;` or `,`."""
        at = self.starts.get(begin)
        while at is not None and at < len(self.tokens):
            what = self.tokens[at].group()
            if what in ("(", "{", "["):
                at = closing(self.tokens, at)
                if at is None:
                    return None
            elif what in (";", ","):
                return self.tokens[at].end()
            elif what in (")", "}", "]"):
                return self.tokens[at].start()
            at += 1
        return None

    def first(self, match):
        return match.start() + len(match.group()) - len(match.group().lstrip())

    def of_lines(self):
        for match in CALL.finditer(self.text):
            begin = self.first(match)
            name = re.match(r"\w+", self.text[begin:]).group()
            end = self.statement_end(begin)
            if name in NO_CALLS or IDLE_CALL.match(self.text, begin):
                continue
            if end and self.text[end - 1] == ";" and self.starts_statement(begin):
                self.plant("call", begin, end, ";")
        for match in ASSIGNMENT.finditer(self.text):
            begin = self.first(match)
            if self.starts_statement(begin):
                self.plant("assignment", begin, match.end(), ";")
        for match in ROW.finditer(self.text):
            begin = self.first(match)
            if begin not in self.starts:
                continue
            if self.text.startswith("ON_", begin):
                end = self.tokens[closing(self.tokens, self.starts[begin] + 1)].end()
                self.plant("row", begin, end, "")
                continue
            end = self.statement_end(begin)
            if end and self.text[end - 1] == "," and self.stands_in_list(begin):
                self.plant("row", begin, end, "")
        for match in TRAIT.finditer(self.text):
            begin = self.first(match)
            at = self.starts.get(begin)
            if at is None or at + 2 >= len(self.tokens) or self.tokens[at + 2].group() not in ("(", "<"):
                continue
            if self.tokens[at + 2].group() == "(":
                self.plant("trait", begin, self.tokens[closing(self.tokens, at + 2)].end(), "")

    def starts_statement(self, begin):
        at = self.starts.get(begin)
        return at is not None and at > 0 and self.tokens[at - 1].group() in (";", "{", "}", ")", ":", "else")

    def stands_in_list(self, begin):
        at = self.starts[begin]
        return at > 0 and self.tokens[at - 1].group() in ("{", ",")


def chosen(sources, weights, count, seed):
    """The defects in the order in which chance takes them; WEIGHTS and those of the folders say how likely each is."""
    defects = [defect for source in sources for defect in source.defects]
    frequency = {}
    for defect in defects:
        frequency[defect.kind] = frequency.get(defect.kind, 0) + 1
    dice = random.Random(seed)

    def rank(defect):
        weight = WEIGHTS[defect.kind] / frequency[defect.kind] * weights[defect.path.split("/")[0]]
        return dice.random() ** (1 / (weight * len(defects)))

    return sorted(defects, key=rank, reverse=True)[:count]
