#!/usr/bin/env python3
"""Doxygen input filter for the public headers: keeps every line where it is.

- A section banner (the ruled comment holding a family's title) opens a group
  of that title, closed at the next banner or before the closing extern "C"
  block. A comment after the banner that is followed by a blank line or by
  another comment (so documents no declaration) becomes the group's text.
- A documentation comment before a run of prototypes documents the first and
  those of the rest that are its twins (dspfi_abs of dspi_abs), that extend its
  name (invertDbl of invert) or that the comment names; any other prototype of
  the run stays undocumented, so that a missing comment is found. A plain
  comment there is taken as one (docs/check_docs.py lists those).
"""
import re
import sys

RULE = re.compile(r'^/\* -{20,} \*/$')
TITLE = re.compile(r'^/\* (\S.*?)\s*\*/$')
NAME = re.compile(r'\b(?:ZF_CALL|ZF_CDECL)\s+(\w+)\s*\(')


def slug(title):
    return re.sub(r'[^a-z0-9]+', '_', title.lower()).strip('_')


def twin(name):
    """The name shared by the double and the float twin: dspfi_abs and dspi_abs,
    dspff_fread and dspf_fread, vfps_FindMax and vfpd_FindMax."""
    head, sep, rest = name.partition('_')
    if head.startswith('dsp'):
        head = 'dsp' + head[3:].replace('f', '')
    elif head.startswith('vfps'):
        head = 'vfpd' + head[4:]
    return head + sep + rest


def comment_end(lines, i):
    while '*/' not in lines[i]:
        i += 1
    return i


def is_banner(lines, i):
    return (i + 2 < len(lines) and RULE.match(lines[i].rstrip()) and TITLE.match(lines[i + 1].rstrip())
            and RULE.match(lines[i + 2].rstrip()))


def filter_header(lines):
    out = list(lines)
    n = len(lines)
    in_group = False
    i = 0
    while i < n:
        if is_banner(lines, i):
            title = TITLE.match(lines[i + 1].rstrip()).group(1)
            out[i] = ('/** @} */' if in_group else '') + '\n'
            out[i + 1] = f'/** @defgroup {slug(title)} {title}\n'
            out[i + 2] = ' * @{ */\n'
            in_group = True
            j = i + 3
            while j < n and not lines[j].strip():
                j += 1
            if j < n and lines[j].startswith('/*') and not is_banner(lines, j):
                end = comment_end(lines, j)
                follow = lines[end + 1].strip() if end + 1 < n else ''
                if not follow or follow.startswith('/*'):
                    out[i + 2] = ' *\n'
                    for k in range(i + 3, j):
                        out[k] = ' *\n'
                    out[j] = ' * ' + re.sub(r'^/\*\*?\s?', '', lines[j])
                    out[end] = re.sub(r'\*/\s*$', '@{ */\n', out[end])
                    j = end + 1
            i = j
            continue
        if lines[i].startswith('/*'):
            end = comment_end(lines, i)
            j = end + 1
            if j < n and lines[j].startswith('ZF_API') and not lines[i].startswith('/**'):
                out[i] = '/**' + lines[i][2:]  # a plain contract comment still documents
            first = None
            while j < n and lines[j].startswith('ZF_API'):
                k = j
                while ';' not in lines[k]:
                    k += 1
                m = NAME.search(''.join(lines[j:k + 1]))
                if m and first is None:
                    first, covered, text = m.group(1), {twin(m.group(1))}, ''.join(lines[i:end + 1])
                elif m and (twin(m.group(1)) in covered or m.group(1).startswith(first)
                            or re.search(rf'\b{m.group(1)}\b', text)):
                    out[j] = f'/** @copydoc {first} */ ' + lines[j]
                    covered.add(twin(m.group(1)))
                j = k + 1
            i = max(j, end + 1)
            continue
        if in_group and lines[i].startswith('#ifdef __cplusplus') and i > n // 2:
            out[i] = '/** @} */ ' + lines[i]
            in_group = False
        i += 1
    return out


if __name__ == '__main__':
    with open(sys.argv[1], encoding='utf-8') as f:
        sys.stdout.write(''.join(filter_header(f.readlines())))
