# Converts CHANGELOG.md to a Debian changelog: awk -v package=NAME -v maintainer="NAME <ADDRESS>"
function sign(   command, stamp) {
    command = "LC_ALL=C date -uRd " date
    command | getline stamp
    printf "\n -- %s  %s\n", maintainer, stamp
}
/^## / {
    if (date) {
        sign()
        print ""
    }
    date = substr($3, 2, 10)
    printf "%s (%s) unstable; urgency=medium\n\n", package, $2
}
date && /^- / { print "  * " substr($0, 3) }
date && /^  / { print "  " $0 }
END { sign() }
