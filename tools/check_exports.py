#!/usr/bin/env python3
"""Checks the library's binary interface against the one export list.

The list (abi/exports.txt: one name a line, '#' comments) must equal
  - the functions declared with ZF_API in the public headers,
  - the functions defined in the exports.cpp files,
  - the dynamic symbols of a built shared library (--so), and
  - the export table of a Windows DLL (--dll): on 32-bit x86 ZF_CALL functions
    under their stdcall name 'name@N', N the bytes of their arguments, and
    ZF_CDECL functions under their plain names; on x86-64, which has one calling
    convention, every function under its plain name. The DLL must also import
    no mingw runtime DLL (libgcc, libstdc++, libwinpthread): those are linked in.
Prints what differs and exits 1 when anything does.
"""
import argparse
import pathlib
import re
import subprocess
import sys

PROTO = re.compile(r'ZF_API\s+[\w\s\*]+?\b(ZF_CALL|ZF_CDECL)\s+(\w+)\s*\(([^)]*)\)\s*;', re.S)
DEFN = re.compile(r'ZF_API\s+[\w\s\*]+?\b(?:ZF_CALL|ZF_CDECL)\s+(\w+)\s*\(')


def arg_bytes(params, name):
    """Bytes a 32-bit x86 caller pushes for the parameter list."""
    params = re.sub(r'/\*.*?\*/', '', params).strip()
    if params in ('', 'void'):
        return 0
    total = 0
    for p in params.split(','):
        p = p.strip()
        if '*' in p or p.split()[0].endswith('_hook') or '[' in p:
            total += 4
        elif re.match(r'(const\s+)?double\b', p):
            total += 8
        elif re.match(r'(const\s+)?(float|int|unsigned|long|short|char|size_t)\b', p):
            total += 4
        else:
            sys.exit(f'check_exports: cannot size parameter "{p}" of {name}')
    return total


def header_functions(headers):
    funcs = {}
    for h in headers:
        text = pathlib.Path(h).read_text()
        for conv, name, params in PROTO.findall(text):
            funcs[name] = (conv, arg_bytes(params, name))
    return funcs


def compare(what, expected, actual):
    missing = sorted(set(expected) - set(actual))
    extra = sorted(set(actual) - set(expected))
    for n in missing:
        print(f'{what}: missing {n}')
    for n in extra:
        print(f'{what}: not in the export list: {n}')
    return not missing and not extra


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument('--list', required=True)
    ap.add_argument('--header', action='append', default=[])
    ap.add_argument('--sources', nargs='*', default=[])
    ap.add_argument('--so')
    ap.add_argument('--dll')
    ap.add_argument('--objdump', default='objdump')
    a = ap.parse_args()

    names = [l.strip() for l in pathlib.Path(a.list).read_text().splitlines()
             if l.strip() and not l.lstrip().startswith('#')]
    ok = True
    dupes = sorted({n for n in names if names.count(n) > 1})
    for n in dupes:
        print(f'export list: {n} is listed twice')
        ok = False
    funcs = header_functions(a.header)
    if a.header:
        ok &= compare('header', names, funcs)
    if a.sources:
        defined = []
        for s in a.sources:
            defined += DEFN.findall(pathlib.Path(s).read_text())
        ok &= compare('exports.cpp', names, defined)
    if a.so:
        out = subprocess.run(['nm', '-D', '--defined-only', a.so], capture_output=True, text=True, check=True).stdout
        syms = [l.split()[-1] for l in out.splitlines() if len(l.split()) >= 3 and l.split()[1] in 'TW']
        ok &= compare(f'{a.so}', names, syms)
    if a.dll:
        out = subprocess.run([a.objdump, '-p', a.dll], capture_output=True, text=True, check=True).stdout
        table = out.split('[Ordinal/Name Pointer] Table', 1)
        syms = re.findall(r'^\s*\[\s*\d+\]\s+(\S+)\s*$', table[1], re.M) if len(table) > 1 else []
        wide = re.search(r'file format pei-x86-64', out) is not None
        expected = []
        for n in names:
            conv, nbytes = funcs.get(n, ('ZF_CALL', -1))
            expected.append(f'{n}@{nbytes}' if conv == 'ZF_CALL' and not wide else n)
        ok &= compare(f'{a.dll}', expected, syms)
        imports = re.findall(r'^\s*DLL Name:\s*(\S+)', out, re.M)
        for dll in imports:
            if re.match(r'lib(gcc|stdc\+\+|winpthread)', dll, re.I):
                print(f'{a.dll}: depends on the mingw runtime DLL {dll}')
                ok = False
        print(f'{a.dll} imports: {", ".join(imports)}')
    print(f'{len(names)} exports checked: ' + ('all agree' if ok else 'MISMATCH'))
    return 0 if ok else 1


if __name__ == '__main__':
    sys.exit(main())
