# Compares counted instructions with the table of ratios. Exits with 1 when a path has grown by more than
# 10 %, or when the table and the counts don't have the same paths.
#
#   awk -f scripts/guard.awk bench/guard.csv build/guard/counts.csv
#
# The table has a headline, then lines of a path and its ratio; the counts have lines of a path, its
# instructions and those of its floor.

BEGIN {
    FS = ","
    most = 1.10
    least = 0.90
}

# Whatever is wrong goes behind the table.
function tell(text) {
    told[++tells] = text
}

NR == FNR {
    if (FNR > 1)
        table[$1] = $2
    next
}

FNR == 1 {
    printf "%-18s %12s %12s %8s %8s %8s\n", "path", "instructions", "floor", "ratio", "table", "change"
}

{
    counted[$1] = 1
    if ($3 + 0 == 0) {
        tell($1 " has a floor without instructions.")
        failed = 1
        next
    }
    ratio = $2 / $3
    if (!($1 in table)) {
        printf "%-18s %12d %12d %8.3f\n", $1, $2, $3, ratio
        tell($1 " is not in the table; scripts/guard.sh --renew writes it anew.")
        failed = 1
        next
    }
    change = ratio / table[$1]
    percent = (change - 1) * 100
    printf "%-18s %12d %12d %8.3f %8.3f %+7.1f%%\n", $1, $2, $3, ratio, table[$1], percent
    if (change > most) {
        tell(sprintf("%s has grown by %.1f %%: %.3f times its floor, %.3f in the table.", $1, percent, ratio, table[$1]))
        failed = 1
    } else if (change < least) {
        tell(sprintf("%s has fallen by %.1f %%; the table should be renewed: scripts/guard.sh --renew.", $1, -percent))
    }
}

END {
    for (path in table)
        if (!(path in counted)) {
            tell(path " is in the table and was not counted.")
            failed = 1
        }
    fflush()
    for (i = 1; i <= tells; ++i)
        print told[i] > "/dev/stderr"
    exit failed
}
