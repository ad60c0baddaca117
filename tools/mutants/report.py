"""What came of the mutants: a table by folder, and each that no test noticed."""
import json

AIM = 95


def latest(file):
    """The last verdict on each mutant, by its key."""
    if not file.exists():
        return {}
    return {verdict['key']: verdict for verdict in map(json.loads, file.read_text().splitlines())}


def equivalents(file):
    """Keys of mutants that are no defect, from lines "key reason"."""
    if not file.exists():
        return {}
    lines = [line for line in file.read_text().splitlines() if line and not line.startswith('#')]
    return dict(line.split(' ', 1) for line in lines)


def folder_of(path):
    parts = path.split('/')
    return '/'.join(parts[:2]) if parts[0] == 'View' else parts[0]


def show(results, equivalent_file, keys=None):
    """Prints what is known of these mutants, or of all; tells by 1 that fewer were noticed than is the aim."""
    same = equivalents(equivalent_file)
    table, alive = {}, []
    for key, verdict in latest(results).items():
        if keys is not None and key not in keys:
            continue
        result = 'equivalent' if key in same and verdict['result'] != 'noticed' else verdict['result']
        row = table.setdefault(folder_of(verdict['path']), {})
        row[result] = row.get(result, 0) + 1
        if result not in ('noticed', 'equivalent'):
            alive.append(verdict)
    heads = ['noticed', 'survived', 'not reached', 'unknown', 'equivalent']
    print('| Folder | Mutants | ' + ' | '.join(head.capitalize() for head in heads) + ' | Noticed of those that count |')
    print('|---|' + '---:|' * (len(heads) + 2))
    table_rows = sorted(table.items())
    total = {head: sum(row.get(head, 0) for row in table.values()) for head in heads}
    share = 100.0
    for name, row in [*table_rows, ('all', total)]:
        counted = sum(row.values()) - row.get('equivalent', 0)
        share = 100 * row.get('noticed', 0) / counted if counted else 100.0
        print(f'| {name} | {sum(row.values())} | ' + ' | '.join(str(row.get(head, 0)) for head in heads)
              + f' | {share:.1f} % |')
    print()
    for verdict in sorted(alive, key=lambda one: (one['path'], one['line'])):
        print(f'{verdict["path"]}:{verdict["line"]}: {verdict["kind"]}, {verdict["result"]}, {verdict["key"]}\n'
              f'    {verdict["original"]}\n  > {verdict["changed"] or "(not called)"}')
    return 0 if share >= AIM else 1
