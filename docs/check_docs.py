#!/usr/bin/env python3
"""Fails when a public function has no documentation in the API reference.

Reads doxygen's XML output (build/docs/xml) and the export list: every exported
name must appear in the reference as a function with a description, inside one
of the header's families (groups). Prints what is missing; exit status 1 then.
Headers given after the list are scanned for contract comments written as
plain comments, which are listed as notes.
"""
import pathlib
import sys
import xml.etree.ElementTree as ET


def text(node):
    return ''.join(node.itertext()).strip() if node is not None else ''


def main(xml_dir='build/docs/xml', export_list='abi/exports.txt', *headers):
    documented, grouped, seen = set(), set(), set()
    for path in pathlib.Path(xml_dir).glob('*.xml'):
        root = ET.parse(path).getroot()
        for compound in root.iter('compounddef'):
            for m in compound.iter('memberdef'):
                if m.get('kind') != 'function':
                    continue
                name = text(m.find('name'))
                seen.add(name)
                if text(m.find('briefdescription')) or text(m.find('detaileddescription')):
                    documented.add(name)
                if compound.get('kind') == 'group':
                    grouped.add(name)
    names = [l.strip() for l in pathlib.Path(export_list).read_text().splitlines()
             if l.strip() and not l.lstrip().startswith('#')]
    bad = 0
    for n in names:
        problem = ('not in the reference' if n not in seen else
                   'has no documentation' if n not in documented else
                   'is in no family' if n not in grouped else None)
        if problem:
            print(f'API reference: {n} {problem}')
            bad += 1
    for n in sorted(seen - set(names)):
        print(f'API reference: {n} is documented but not exported')
        bad += 1
    print(f'API reference: {len(names) - bad} of {len(names)} exported functions documented')
    for header in headers:
        lines = pathlib.Path(header).read_text().splitlines()
        for i, line in enumerate(lines):
            if line.startswith('ZF_API') and i and lines[i - 1].rstrip().endswith('*/'):
                start = i - 1
                while not lines[start].lstrip().startswith('/*'):
                    start -= 1
                if not lines[start].startswith('/**'):
                    print(f'note: {header}:{start + 1}: a plain comment documents {line.split("(")[0].split()[-1]}; '
                          'write it as /** ... */')
    return 1 if bad else 0


if __name__ == '__main__':
    sys.exit(main(*sys.argv[1:]))
