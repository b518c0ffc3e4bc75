#!/usr/bin/env python3
"""Prints a table of Google Benchmark results (--benchmark_format=json).

For each benchmark named like BM_name<type>/size[/...]: time per sample (from
items_per_second, else real time / size), GB/s (from bytes_per_second) and
the ratio of its bandwidth to the baseline of the same type and size
(BM_baseline_stream_copy by default). With --vs OP=REF a further column gives
time per sample of OP divided by that of REF, same type and size.

When the run had repetitions, the median aggregate is used (else the mean,
else the single run).

  tools/bench_table.py vmath.json --vs BM_vmath_exp=BM_vmath_plain_exp
"""
import argparse
import json
import re
import sys

NAME = re.compile(r'^(?P<base>[^<>/]+)<(?P<type>[^>]+)>/(?P<size>\d+)')
PREFERENCE = {'median': 0, 'mean': 1, None: 2}


def load(path):
    with open(path) as f:
        data = json.load(f)
    chosen = {}
    for b in data.get('benchmarks', []):
        agg = b.get('aggregate_name')
        if agg not in PREFERENCE:
            continue
        m = NAME.match(b.get('run_name', b['name']))
        if not m:
            continue
        key = (m['base'], m['type'], int(m['size']))
        rank = PREFERENCE[agg]
        if key not in chosen or rank < chosen[key][0]:
            chosen[key] = (rank, b)
    rows = {}
    for key, (_, b) in chosen.items():
        size = key[2]
        if b.get('items_per_second'):
            ns = 1e9 / b['items_per_second']
        else:
            scale = {'ns': 1, 'us': 1e3, 'ms': 1e6, 's': 1e9}[b.get('time_unit', 'ns')]
            ns = b['real_time'] * scale / size
        gbs = b['bytes_per_second'] / 1e9 if b.get('bytes_per_second') else None
        rows[key] = (ns, gbs)
    return rows


def size_text(n):
    for unit, div in (('M', 1 << 20), ('k', 1 << 10)):
        if n >= div and n % div == 0:
            return f'{n // div}{unit}'
    return str(n)


def main():
    ap = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    ap.add_argument('json', nargs='+', help='Google Benchmark JSON output files')
    ap.add_argument('--baseline', default='BM_baseline_stream_copy', help='benchmark whose bandwidth is 1.0')
    ap.add_argument('--vs', action='append', default=[], metavar='OP=REF',
                    help='add the time ratio OP / REF (same type and size)')
    ap.add_argument('--filter', default='', help='only benchmarks whose name matches this regular expression')
    args = ap.parse_args()

    rows = {}
    for path in args.json:
        rows.update(load(path))
    if not rows:
        sys.exit('bench_table: no benchmark results found')
    versus = {}
    for pair in args.vs:
        op, sep, ref = pair.partition('=')
        if not sep:
            sys.exit(f'bench_table: --vs expects OP=REF, got {pair}')
        versus[op] = ref

    header = ['benchmark', 'type', 'size', 'ns/sample', 'GB/s', 'bw/base', 'vs', 'time/ref']
    out = [header]
    order = sorted(rows, key=lambda k: (k[0] != args.baseline, k[0], k[1], k[2]))
    for key in order:
        base, typ, size = key
        if args.filter and not re.search(args.filter, base):
            continue
        ns, gbs = rows[key]
        ref = rows.get((args.baseline, typ, size))
        bw = f'{gbs / ref[1]:.2f}' if gbs and ref and ref[1] and base != args.baseline else ''
        vs_name, vs_ratio = '', ''
        if base in versus:
            other = rows.get((versus[base], typ, size))
            vs_name = versus[base]
            vs_ratio = f'{ns / other[0]:.2f}' if other else 'n/a'
        out.append([base, typ, size_text(size), f'{ns:.3f}', f'{gbs:.2f}' if gbs else '', bw, vs_name, vs_ratio])
    widths = [max(len(r[i]) for r in out) for i in range(len(header))]
    for i, r in enumerate(out):
        print('  '.join(c.ljust(w) if j in (0, 1, 6) else c.rjust(w) for j, (c, w) in enumerate(zip(r, widths))).rstrip())
        if i == 0:
            print('  '.join('-' * w for w in widths))


if __name__ == '__main__':
    main()
