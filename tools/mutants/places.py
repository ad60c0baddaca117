"""Places of a C++ source that can be changed, found in its text.

The tree is formatted by clang-format, so a binary operator has a blank on both sides and a template's bracket
has none: tokens are enough, and no compiler is asked. What is no C++ after the change is dropped later.
"""
import hashlib
import re
from dataclasses import dataclass

TOKEN = re.compile(
    r'(?P<skip>//[^\n]*|/\*.*?\*/|^[ \t]*#(?:[^\n\\]|\\\n|\\.)*)'
    r'|(?P<raw>(?:u8|[uUL])?R"(?P<tag>[^(\s]*)\(.*?\)(?P=tag)")'
    r'|(?P<text>(?:u8|[uUL])?"(?:[^"\\\n]|\\.)*"|(?:u8|[uUL])?\'(?:[^\'\\\n]|\\.)*\')'
    r"|(?P<number>\.?\d(?:[eEpP][+-]|[\w.]|'(?=\w))*)"
    r'|(?P<word>[A-Za-z_]\w*)'
    r'|(?P<sign><<=|>>=|<=>|->\*|\.\.\.|&&|\|\||==|!=|<=|>=|\+\+|--|->|::|<<|>>|[-+*/%&|^]=|.)',
    re.M | re.S)

# Precedence of binary operators, the tightest highest.
PRECEDENCE = {'||': 1, '&&': 2, '|': 3, '^': 4, '&': 5, '==': 6, '!=': 6, '<': 7, '>': 7, '<=': 7, '>=': 7,
              '<=>': 8, '<<': 9, '>>': 9, '+': 10, '-': 10, '*': 11, '/': 11, '%': 11}
CHANGES = {
    '<': ('relation', ['<=', '>=']), '>': ('relation', ['>=', '<=']),
    '<=': ('relation', ['<', '>']), '>=': ('relation', ['>', '<']),
    '==': ('relation', ['!=']), '!=': ('relation', ['==']),
    '&&': ('logic', ['||']), '||': ('logic', ['&&']),
    '+': ('arithmetic', ['-']), '-': ('arithmetic', ['+']),
    '*': ('arithmetic', ['/']), '/': ('arithmetic', ['*']), '%': ('arithmetic', ['/'])}
ASSIGNMENTS = {'=', '+=', '-=', '*=', '/=', '%=', '|=', '&=', '^=', '<<=', '>>='}
COMPOUND = {'+=': '-=', '-=': '+='}
ENDS_LEFT = {';', ',', '(', '[', '{', '?', ':', 'return', 'throw', 'else', 'case', 'emit'} | ASSIGNMENTS
ENDS_RIGHT = {';', ',', ')', ']', '}', '?', ':'} | ASSIGNMENTS
LOG = re.compile(r'^(q(C)?(Debug|Info|Warning|Critical)|Log\w*)$')
NO_CALL = re.compile(r'^(q[A-Z]\w*|Q_\w+|[A-Z][A-Z0-9_]+|static_assert|Log\w*|if|for|while|switch|return|delete|throw'
                     r'|new|else|do|case|default|using|sizeof|assert|goto|operator|catch)$')


@dataclass
class Token:
    kind: str
    text: str
    start: int
    end: int
    blank_before: bool = False
    blank_after: bool = False
    line_before: bool = False


@dataclass
class Place:
    """From start to end of a file's text the original stands, which changed would replace."""
    path: str
    line: int
    kind: str
    start: int
    end: int
    original: str
    changed: str
    key: str = ''


def tokens_of(source):
    found = []
    for match in TOKEN.finditer(source):
        kind = match.lastgroup if match.lastgroup != 'tag' else 'raw'
        if kind == 'skip' or match.group().isspace():
            continue
        start, end = match.span()
        found.append(Token(kind, match.group(), start, end, source[start - 1:start].isspace(),
                           source[end:end + 1].isspace()))
    for before, token in zip(found, found[1:]):
        token.line_before = '\n' in source[before.end:token.start]
    return found


class Source:
    """The places of one source."""

    def __init__(self, path, text):
        self.path = path
        self.text = text
        self.tokens = tokens_of(text)
        self.partner = self._partners()
        self.closed = self._closed()
        self.places = []

    def _partners(self):
        partner, stack = {}, []
        for i, token in enumerate(self.tokens):
            if token.kind != 'sign':
                continue
            if token.text in '([{':
                stack.append(i)
            elif token.text in ')]}' and stack:
                partner[i] = stack.pop()
                partner[partner[i]] = i
        return partner

    def _statement_end(self, i):
        """The index of the semicolon that ends what begins at i, or of the brace of its body."""
        while i < len(self.tokens):
            text = self.tokens[i].text
            if text == ';' or (text in ')]}' and self.tokens[i].kind == 'sign'):
                return i
            if text in '([{' and self.tokens[i].kind == 'sign':
                i = self.partner.get(i, len(self.tokens))
                follows = self.tokens[i + 1].text if i + 1 < len(self.tokens) else ''
                if i < len(self.tokens) and self.tokens[i].text == '}' and follows not in (';', ',', ')', '.', '('):
                    return i
            i += 1
        return len(self.tokens) - 1

    def _closed(self):
        """Tokens at which nothing is changed: what the compiler computes, and what is only logged."""
        closed = set()
        for i, token in enumerate(self.tokens):
            if token.kind != 'word':
                continue
            if token.text in ('constexpr', 'consteval', 'static_assert', 'enum', 'using', 'requires', 'concept',
                              'typedef') or LOG.match(token.text):
                if token.text == 'constexpr' and self.tokens[i - 1].text == 'if':
                    end = self.partner.get(i + 1, i)
                else:
                    end = self._statement_end(i)
                closed.update(range(i, end + 1))
            elif token.text == 'case':
                j = i
                while self.tokens[j].text != ':':
                    j += 1
                closed.update(range(i, j))
            elif token.text == 'template' and self.tokens[i + 1].text == '<':
                j = i
                while j < len(self.tokens) and not (self.tokens[j].text in ('>', '>>') and self.tokens[j].blank_after):
                    j += 1
                closed.update(range(i, j))
        return closed

    def _is_binary(self, i):
        token = self.tokens[i]
        return token.kind == 'sign' and token.text in PRECEDENCE and token.blank_before and token.blank_after

    def _left(self, i, weight):
        """The first token of the operand that ends before i."""
        j = i - 1
        while j >= 0:
            token = self.tokens[j]
            if token.text in ENDS_LEFT and token.kind != 'text':
                break
            if self._is_binary(j) and PRECEDENCE[token.text] < weight:
                break
            if token.text in (')', ']', '}') and token.kind == 'sign':
                if token.text == '}' and self.tokens[j + 1].line_before:
                    break
                j = self.partner.get(j, 0)
            j -= 1
        return j + 1

    def _right(self, i, weight):
        """The last token of the operand that begins behind i."""
        j = i + 1
        while j < len(self.tokens):
            token = self.tokens[j]
            if token.text in ENDS_RIGHT and token.kind != 'text':
                break
            if self._is_binary(j) and PRECEDENCE[token.text] <= weight:
                break
            if token.text in ('(', '[', '{') and token.kind == 'sign':
                j = self.partner.get(j, len(self.tokens))
            j += 1
        return j - 1

    def _add(self, kind, first, last, changed, at):
        start, end = self.tokens[first].start, self.tokens[last].end
        self.places.append(Place(self.path, self.text.count('\n', 0, self.tokens[at].start) + 1, kind, start, end,
                                 self.text[start:end], ' '.join(changed.split())))

    def _operator(self, i):
        token = self.tokens[i]
        if token.text not in CHANGES or not self._is_binary(i):
            return
        kind, others = CHANGES[token.text]
        weight = PRECEDENCE[token.text]
        first, last = self._left(i, weight), self._right(i, weight)
        if first >= i or last <= i:
            return
        left = self.text[self.tokens[first].start:token.start]
        right = self.text[token.end:self.tokens[last].end]
        # Texts are joined by +, and have no other arithmetic.
        if kind == 'arithmetic' and re.search(r'"|QString|Text|Name|\btr\(|\.arg\(|Words|Path|Key', left + right):
            return
        if kind == 'logic':
            left, right = f'({left.strip()}) ', f' ({right.strip()})'
        for other in others:
            self._add(kind, first, last, left + other + right, i)

    def _constant(self, i):
        token = self.tokens[i]
        before = self.tokens[i - 1] if i else token
        after = self.tokens[i + 1] if i + 1 < len(self.tokens) else token
        if (before.text == '<' and not before.blank_after) or (after.text == '>' and not after.blank_before):
            return
        if token.text in ('true', 'false'):
            self._add('constant', i, i, 'false' if token.text == 'true' else 'true', i)
        elif token.kind == 'number':
            if before.text == '=' and self.tokens[i - 2].text in (')', 'const', 'override', 'noexcept'):
                return
            self._add('constant', i, i, f'({token.text} + 1)', i)

    def _condition(self, i):
        if self.tokens[i].text not in ('if', 'while') or self.tokens[i + 1].text != '(':
            return
        last = self.partner.get(i + 1)
        inner = self.tokens[i + 2:last]
        if not inner or any(token.text in (';', '=') for token in inner):
            return
        whole = self.text[inner[0].start:inner[-1].end]
        self._add('condition', i + 2, last - 1, f'!({whole})', i)

    def _begins_statement(self, i):
        before = self.tokens[i - 1]
        if before.kind == 'text':
            return False
        if before.text == ')':
            opening = self.partner.get(i - 1, 0)
            return self.tokens[opening - 1].text in ('if', 'for', 'while')
        return before.text in (';', '{', '}', 'else', ':') and self.tokens[i].line_before

    def _call(self, i):
        if i == 0 or self.tokens[i].kind != 'word' or not self._begins_statement(i):
            return
        j = i + 1 if self.tokens[i].text == 'emit' else i
        if NO_CALL.match(self.tokens[j].text):
            return
        want_word = True
        while j < len(self.tokens) and self.tokens[j].text != ';':
            token = self.tokens[j]
            if want_word != (token.kind == 'word'):
                if token.text != '(' or self.tokens[j - 1].text in ('.', '->', '::'):
                    return
            if token.text == '(':
                j = self.partner.get(j, len(self.tokens))
            elif token.kind == 'sign' and token.text not in ('.', '->', '::'):
                return
            want_word = token.text in ('.', '->', '::')
            j += 1
        if j < len(self.tokens) and self.tokens[j - 1].text == ')':
            self._add('call', i, j - 1, '', i)

    def _compound(self, i):
        token = self.tokens[i]
        if token.text not in COMPOUND or not token.blank_before:
            return
        first = i
        while self.tokens[first - 1].kind == 'word' or self.tokens[first - 1].text in ('.', '->', '::', ']'):
            first = self.partner.get(first - 1, first - 1)
        last = self._right(i, 0)
        right = self.text[token.end:self.tokens[last].end]
        if first < i <= last and not re.search(r'"|QString|Text|\btr\(|\.arg\(|Words|QLatin1', right):
            self._add('arithmetic', first, last,
                      self.text[self.tokens[first].start:token.start] + COMPOUND[token.text] + right, i)

    def find(self):
        for i in range(len(self.tokens)):
            if i in self.closed:
                continue
            self._operator(i)
            self._constant(i)
            self._condition(i)
            self._call(i)
            self._compound(i)
        self._name()
        for place in self.places:
            self._widen(place)
        return self.places

    def _widen(self, place):
        """To the end of the statement where an assignment's right side goes on with "?"; its key stays."""
        if re.search(r'[-+]=', place.original) and re.match(r'\s*\?', self.text[place.end:]):
            end = self.text.index(';', place.end)
            place.changed += ' ' + ' '.join(self.text[place.end:end].split())
            place.original, place.end = self.text[place.start:end], end

    def _name(self):
        """A key that stays when lines are added elsewhere: of the line's text, not of its number."""
        lines, seen = self.text.split('\n'), {}
        for place in self.places:
            words = '|'.join((place.path, place.kind, lines[place.line - 1].strip(), place.changed))
            seen[words] = seen.get(words, 0) + 1
            place.key = hashlib.sha1(f'{words}|{seen[words]}'.encode()).hexdigest()[:10]


def places_of(path, text):
    return Source(path, text).find()


def woven(text, numbered):
    """The text with its places replaced, each an int and a Place; lines keep their numbers."""
    for number, place in sorted(numbered, key=lambda pair: -pair[1].start):
        alive = f'mutants::Alive({number})'
        original = place.original
        if place.kind == 'call':
            new = f'({alive} ? void() : void({original}))'
        elif place.kind == 'condition':
            new = f'({alive} ? {place.changed} : static_cast<bool>({original}))'
        else:
            new = f'({alive} ? ({place.changed}) : ({original}))'
        text = text[:place.start] + new + text[place.end:]
    return '#include "tools/mutants/Mutant.h"\n#line 1\n' + text
