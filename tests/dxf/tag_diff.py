"""Compares two drawings tag by tag and names every difference that a command may not make."""

ATTACH = b"ZWT_ATTACH"
PIPE = b"ZWT_PIPE"
CHANGED_TABLES = (b"LAYER", b"STYLE", b"APPID")


def read_tags(data):
    lines = data.split(b"\n")
    tags = []
    for i in range(0, len(lines) - 1, 2):
        try:
            code = int(lines[i])
        except ValueError:
            break
        tags.append((code, lines[i + 1].rstrip(b"\r")))
        if tags[-1][0] == 0 and tags[-1][1].strip() == b"EOF":
            break
    return tags


def split_sections(tags):
    """name -> tags inside; everything outside of sections under None."""
    sections = {None: []}
    name = None
    i = 0
    while i < len(tags):
        code, value = tags[i]
        if name is None and code == 0 and value.strip() == b"SECTION":
            j = i + 1
            while tags[j][0] == 999:
                j += 1
            name = tags[j][1].strip()
            sections[name] = []
            i = j + 1
            continue
        if code == 0 and value.strip() == b"ENDSEC":
            name = None
        else:
            sections[name].append((code, value))
        i += 1
    return sections


def split_records(tags):
    records = []
    for code, value in tags:
        if code == 0 or not records:
            records.append([])
        records[-1].append((code, value))
    return records


def join_parts(records):
    """Vertices and attributes belong to the entity in front of them."""
    joined = []
    for record in records:
        kind = record[0][1].strip()
        if joined and kind in (b"VERTEX", b"ATTRIB", b"SEQEND"):
            joined[-1] += record
        else:
            joined.append(list(record))
    return joined


def own_data(record, application):
    """Index range of one application's extended data in a record's own tags."""
    begin = None
    for i, (code, value) in enumerate(record):
        if begin is not None and (code < 999 or code == 1001):
            return begin, i
        if code == 1001 and value.strip() == application:
            begin = i
    return (begin, len(record)) if begin is not None else None


def without_data(record, application):
    found = own_data(record, application)
    return record if found is None else record[: found[0]] + [t for t in record[found[0]: found[1]] if t[0] == 999] + \
        record[found[1]:]


def handle_of(record):
    return next((value.strip() for code, value in record if code == 5), None)


def comments(record):
    return [tag for tag in record if tag[0] == 999]


class Diff:
    def __init__(self):
        self.errors = []

    def fail(self, text):
        self.errors.append(text)

    def header(self, old, new):
        def variables(tags):
            values, name = {}, None
            for code, value in tags:
                if code == 9:
                    name = value.strip()
                values.setdefault(name, []).append((code, value))
            return values
        a, b = variables(old), variables(new)
        for name in list(a) + [n for n in b if n not in a]:
            if a.get(name) != b.get(name) and name not in (b"$HANDSEED", b"$HANDLING"):
                self.fail(f"header {name}: {a.get(name)} became {b.get(name)}")
        if b"$HANDSEED" in a and int(b[b"$HANDSEED"][1][1], 16) < int(a[b"$HANDSEED"][1][1], 16):
            self.fail("the handle seed went down")

    def tables(self, old, new):
        def tables(tags):
            result, name = {}, None
            for record in split_records(tags):
                if record[0] == (0, b"TABLE"):
                    name = next(value for code, value in record if code == 2).strip()
                result.setdefault(name, []).append(record)
            return result
        a, b = tables(old), tables(new)
        for name in b:
            if name not in a:
                if name not in CHANGED_TABLES:
                    self.fail(f"new table {name}")
                continue
            if a[name] != b[name]:
                self.table(name, a[name], b[name])
        for name in a:
            if name not in b:
                self.fail(f"table {name} is gone")

    def table(self, name, old, new):
        if name not in CHANGED_TABLES:
            self.fail(f"table {name} changed")
            return
        added = len(new) - len(old)
        count_a = [int(v) for c, v in old[0] if c == 70]
        count_b = [int(v) for c, v in new[0] if c == 70]
        if [t for t in old[0] if t[0] != 70] != [t for t in new[0] if t[0] != 70]:
            self.fail(f"head of table {name} changed")
        if [c + added for c in count_a] != count_b:
            self.fail(f"table {name}: count {count_a} became {count_b} with {added} new records")
        if old[1:-1] != new[1: len(old) - 1] or old[-1] != new[-1]:
            self.fail(f"records of table {name} changed")

    def entities(self, old, new):
        a, b = join_parts(split_records(old)), join_parts(split_records(new))
        had_handles = all(handle_of(r) for r in a)
        j = 0
        for record in a:
            if j < len(b) and self.same_entity(record, b[j], had_handles):
                j += 1
            elif own_data(record, ATTACH) is None:
                self.fail(f"entity changed: {record[:3]} became {b[j][:3] if j < len(b) else None}")
        for record in b[j:]:
            if own_data(record, PIPE) is None and record[0] != (0, b"TEXT"):
                self.fail(f"new entity {record[:4]}")
            if handle_of(record) is None:
                self.fail(f"new entity without a handle {record[:4]}")

    def same_entity(self, old, new, had_handles):
        if old[0] != new[0]:
            return False
        if handle_of(old) is None and handle_of(new) is not None:
            new = [tag for tag in new if tag[0] != 5]
        return without_data(old, PIPE) == without_data(new, PIPE)

    def compare(self, old_bytes, new_bytes):
        old, new = split_sections(read_tags(old_bytes)), split_sections(read_tags(new_bytes))
        for name in list(old) + [n for n in new if n not in old]:
            a, b = old.get(name, []), new.get(name, [])
            if name == b"HEADER":
                self.header(a, b)
            elif name == b"TABLES":
                self.tables(a, b)
            elif name == b"ENTITIES":
                self.entities(a, b)
            elif a != b:
                self.fail(f"section {name} changed")
        for name in old:
            if name not in new:
                self.fail(f"section {name} is gone")
        if [t for t in read_tags(old_bytes) if t[0] == 999] != [t for t in read_tags(new_bytes) if t[0] == 999]:
            self.fail("comments changed")
        return self.errors
