# The results of one benchmark program in an old and a new build, as rows of a table: the median of each
# line's times, and the ratio new to old of each round: median, lowest, highest. A line that only one
# build has says so.
#
#   awk -f tools/bench-against.awk ModelBench.{old,new}.*.json
#
# The files are Google Benchmark's JSON, named PROGRAM.old.ROUND.json and PROGRAM.new.ROUND.json. Times
# are those by the clock.

function text_of(line) {
    sub(/^[^:]*: *"?/, "", line)
    sub(/"?,? *\r?$/, "", line)
    return line
}

# Sorts values[1..count] and gives the one in the middle.
function median(values, count,    i, j, value) {
    for (i = 2; i <= count; ++i) {
        value = values[i]
        for (j = i - 1; j >= 1 && values[j] > value; --j)
            values[j + 1] = values[j]
        values[j + 1] = value
    }
    if (count % 2)
        return values[(count + 1) / 2]
    return (values[count / 2] + values[count / 2 + 1]) / 2
}

# The median time of a line in a build.
function time_of(side, name,    round, count, values) {
    count = 0
    for (round = 1; round <= rounds; ++round)
        if ((side, round, name) in times)
            values[++count] = times[side, round, name]
    return median(values, count)
}

function row(name,    round, count, ratios, middle) {
    if (!(("old", name) in seen)) {
        printf "| %s | %s | | %.4g | only new | | |\n", program, name, time_of("new", name)
        return
    }
    if (!(("new", name) in seen)) {
        printf "| %s | %s | %.4g | | only old | | |\n", program, name, time_of("old", name)
        return
    }
    count = 0
    for (round = 1; round <= rounds; ++round)
        if (("old", round, name) in times && ("new", round, name) in times)
            ratios[++count] = times["new", round, name] / times["old", round, name]
    if (count == 0) {
        printf "| %s | %s | %.4g | %.4g | no round with both | | |\n", program, name,
            time_of("old", name), time_of("new", name)
        return
    }
    middle = median(ratios, count)
    printf "| %s | %s | %.4g | %.4g | %.3f | %.3f | %.3f |\n", program, name,
        time_of("old", name), time_of("new", name), middle, ratios[1], ratios[count]
}

BEGIN {
    milliseconds["ns"] = 1e-6
    milliseconds["us"] = 1e-3
    milliseconds["ms"] = 1
    milliseconds["s"] = 1e3
}

FNR == 1 {
    parts = split(FILENAME, part, ".")
    side = part[parts - 2]
    round = part[parts - 1] + 0
    program = part[parts - 3]
    sub(/.*\//, "", program)
    if (round > rounds)
        rounds = round
    name = ""
}

/^ *"name": / {
    name = text_of($0)
    sub(/\/iterations:[0-9]+/, "", name)
}
/^ *"real_time": / { time = text_of($0) + 0 }
# The unit is the last of them; a failed line has times of 0.
/^ *"time_unit": / {
    if (time > 0) {
        times[side, round, name] = time * milliseconds[text_of($0)]
        seen[side, name] = 1
        if (!(name in known)) {
            known[name] = 1
            order[++lines] = name
        }
    }
}

END {
    for (i = 1; i <= lines; ++i)
        row(order[i])
}
