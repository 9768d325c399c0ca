# Holds scripts against the rules of newer.txt; with shell_text.awk, which takes them apart first.
#
#     awk -f shell_text.awk -f check.awk newer.txt SCRIPT ...
#
# The rules' own samples come first: each that must be refused must be refused by its own rule, each that must
# pass by none. Exit status 1: a sample or a script is not as it must be.

function fail(message) {
    sub(/\n$/, "", message)
    print message > "/dev/stderr"
    failed = 1
}

# Where a command may begin: at the start, after what separates commands, after a word that introduces one,
# after assignments that are for this command alone.
function pattern(written) {
    sub(/^@/, "(^|[;\\&|(){}!`]|(^|[[:blank:];])(then|do|else|if|elif|while|until|time|builtin|command)[[:blank:]])" \
              "[[:blank:]]*([A-Za-z_][A-Za-z_0-9]*=[^[:blank:]]*[[:blank:]]+)*", written)
    return written
}

# The names of the rules that the script breaks; each finding is told when `where` says where.
function broken_rules(script, where,    lines, texts, count, i, r, names) {
    take_apart(script)
    count = split(code, lines, "\n")
    split(text, texts, "\n")
    find_filled_arrays(code)
    names = " "
    for (i = 1; i <= count; i++) {
        for (r = 1; r <= rules; r++) {
            if ((view[r] == "array" ? may_be_empty(lines[i]) \
                                    : (view[r] == "code" ? lines[i] : texts[i]) ~ expression[r])) {
                names = names name[r] " "
                if (where != "") {
                    fail(where ":" i ": " name[r] " (" since[name[r]] ")")
                }
            }
        }
    }
    return names
}

# Arrays that are made with something in them and can't change any more.
function find_filled_arrays(script,    lines, count, i, word) {
    split("", filled)
    count = split(script, lines, "\n")
    for (i = 1; i <= count; i++) {
        if (lines[i] ~ /^[ \t]*readonly [A-Za-z_][A-Za-z_0-9]*=\([^) ]/) {
            word = lines[i]
            sub(/^[ \t]*readonly /, "", word)
            sub(/=.*/, "", word)
            filled[word] = 1
        }
    }
}

# Whether the line expands a whole array that may be empty without asking first, as ${x[@]+"${x[@]}"} does.
function may_be_empty(line,    word, guard) {
    while (match(line, /\$\{[A-Za-z_][A-Za-z_0-9]*\[[@*]\]/)) {
        word = substr(line, RSTART + 2, RLENGTH - 5)
        guard = "${" word "[@]+\"${" word "[@]}\"}"
        if (substr(line, RSTART, length(guard)) == guard) {
            line = substr(line, 1, RSTART - 1) substr(line, RSTART + length(guard))
        } else if (word in filled) {
            line = substr(line, 1, RSTART - 1) substr(line, RSTART + RLENGTH)
        } else {
            return 1
        }
    }
    return 0
}

function rest() {
    sub(/^[^ ]+ /, "")
    return $0
}

function sample(    script) {
    script = rest()
    gsub(/<newline>/, "\n", script)
    return script "\n"
}

FILENAME != ARGV[1] {
    if (FILENAME != now) {
        now = FILENAME
        scripts[++script_count] = now
    }
    contents[now] = contents[now] $0 "\n"
    next
}
/^#/ || /^[ \t]*$/ { next }
$1 == "rule" { current = rest(); next }
$1 == "since" { since[current] = rest(); next }
$1 == "code" || $1 == "text" || $1 == "array" {
    view[++rules] = $1
    name[rules] = current
    expression[rules] = pattern(rest())
    next
}
$1 == "refuse" {
    refused[++refusals] = sample()
    refuser[refusals] = current
    next
}
$1 == "pass" { passing[++passes] = sample(); next }
{ fail(FILENAME ":" FNR ": not understood: " $0) }

END {
    for (i = 1; i <= refusals; i++) {
        has_sample[refuser[i]] = 1
        if (index(broken_rules(refused[i], ""), " " refuser[i] " ") == 0) {
            fail("the rule \"" refuser[i] "\" does not refuse: " refused[i])
        }
    }
    for (i = 1; i <= passes; i++) {
        broken = broken_rules(passing[i], "")
        if (broken != " ") {
            fail("refused by" broken "though bash 3.2 has it: " passing[i])
        }
    }
    for (r = 1; r <= rules; r++) {
        if (!(name[r] in has_sample) || !(name[r] in since)) {
            fail("the rule \"" name[r] "\" has no sample to refuse, or no version")
        }
        different[name[r]] = 1
    }
    for (r in different) {
        rule_count++
    }
    printf "%d rules: %d samples refused, %d let through\n", rule_count, refusals, passes
    for (i = 1; i <= script_count; i++) {
        broken_rules(contents[scripts[i]], scripts[i])
    }
    exit failed
}
