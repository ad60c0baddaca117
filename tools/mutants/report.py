"""What came of the mutants: a table by folder, and each that no test noticed."""
import json

AIM = 95


def latest(file):
    """The last verdict on each mutant, by its key."""
    if not file.exists():
        return {}
    return {verdict['key']: verdict for verdict in map(json.loads, file.read_text().splitlines())}


def by_new_tests(file):
    """Keys of mutants that a test noticed after all tests had let them pass."""
    passed, noticed = set(), set()
    for verdict in map(json.loads, file.read_text().splitlines() if file.exists() else []):
        if verdict['result'] != 'noticed':
            passed.add(verdict['key'])
        elif verdict.get('again') and verdict['key'] in passed:
            noticed.add(verdict['key'])
    return noticed


def equivalents(file):
    """Keys of mutants that are no defect, from lines "key reason"."""
    if not file.exists():
        return {}
    lines = [line for line in file.read_text().splitlines() if line and not line.startswith('#')]
    return dict(line.split(' ', 1) for line in lines)


def folder_of(path):
    parts = path.split('/')
    return '/'.join(parts[:2]) if parts[0] == 'View' else parts[0]


def show(results, equivalent_file, paths=None):
    """Prints what is known of these mutants (the path of each key), or of all that have a verdict; tells by 1 that
    fewer were noticed than is the aim."""
    same, anew = equivalents(equivalent_file), by_new_tests(results)
    table, alive = {}, []
    known = latest(results)
    if paths is not None:
        known = {key: known.get(key, {'path': path, 'result': 'not judged'}) for key, path in paths.items()}
    for key, verdict in known.items():
        result = 'equivalent' if key in same and verdict['result'] != 'noticed' else verdict['result']
        result = 'by a new test' if key in anew else result
        row = table.setdefault(folder_of(verdict['path']), {})
        row[result] = row.get(result, 0) + 1
        if result not in ('noticed', 'by a new test', 'equivalent', 'not judged'):
            alive.append(verdict)
    # "Unknown": the tests that were tried let it pass, others that reach it were too slow.
    heads = ['noticed', 'by a new test', 'equivalent', 'survived', 'not reached', 'unknown', 'not judged']
    print('| Folder | Mutants | ' + ' | '.join(head.capitalize() for head in heads) + ' | Noticed of those that count |')
    print('|---|' + '---:|' * (len(heads) + 2))
    table_rows = sorted(table.items())
    total = {head: sum(row.get(head, 0) for row in table.values()) for head in heads}
    share = 100.0
    for name, row in [*table_rows, ('all', total)]:
        counted = sum(row.values()) - row.get('equivalent', 0) - row.get('not judged', 0)
        good = row.get('noticed', 0) + row.get('by a new test', 0)
        share = 100 * good / counted if counted else 100.0
        print(f'| {name} | {sum(row.values())} | ' + ' | '.join(str(row.get(head, 0)) for head in heads)
              + f' | {share:.1f} % |')
    print()
    for verdict in sorted(alive, key=lambda one: (one['path'], one['line'])):
        print(f'{verdict["path"]}:{verdict["line"]}: {verdict["kind"]}, {verdict["result"]}, {verdict["key"]}\n'
              f'    {verdict["original"]}\n  > {verdict["changed"] or "(not called)"}')
    return 0 if share >= AIM else 1
