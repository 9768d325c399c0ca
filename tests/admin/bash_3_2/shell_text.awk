# Takes a shell script apart into two texts with the script's own lines, for rules to be held against:
#
#   code  comments gone; of quoted text only the length is left ("____"), but what is expanded in it stays
#   text  comments gone; quoted text stays, its quotes go: declare "-A" reads like declare -A
#
# A line that goes on after a backslash is one line of both. Some things only their surroundings make wrong;
# they are marked in `code`: <case-in-substitution>, <here-in-substitution>, <quote-in-expansion>.
#
# Where the reader stands is a stack of letters: c code, s a substitution's code, p code in parentheses,
# q double quotes, b an expansion in braces (B: within double quotes), a arithmetic, t backquotes.

function take_apart(script,    length_) {
    source = script
    place = 1
    length_ = length(source)
    stack = "c"
    code = text = waiting = here = ""
    while (place <= length_) {
        step(substr(source, place, 1))
    }
}

function top() {
    return substr(stack, length(stack), 1)
}

function push(mode) {
    stack = stack mode
}

function pop() {
    if (length(stack) > 1) {
        stack = substr(stack, 1, length(stack) - 1)
    }
}

function emit(c, t, count) {
    code = code c
    text = text t
    place += count
}

function next_is(string) {
    return substr(source, place, length(string)) == string
}

# Of a word that begins here: what may stand before one.
function at_word(    before) {
    before = place == 1 ? "\n" : substr(source, place - 1, 1)
    return index(" \t\n;&|(){}`", before) > 0
}

function in_substitution() {
    return index(stack, "s") > 0 || index(stack, "t") > 0
}

function step(c,    mode) {
    mode = top()
    if (c == "\\") {
        backslash()
    } else if (c == "\n") {
        emit(c, c, 1)
        text = text waiting
        code = code waiting
        waiting = ""
        if (here != "" && index("qbBa", mode) == 0) {
            here_document()
        }
    } else if (c == "$" || (c == "`" && mode != "a")) {
        expansion(c, mode)
    } else if (mode == "q") {
        if (c == "\"") {
            pop()
            emit(c, "", 1)
        } else {
            emit("_", c, 1)
        }
    } else if (c == "\"") {
        push("q")
        emit(c, "", 1)
    } else if (c == "'" && mode == "B") {
        emit("<quote-in-expansion>", c, 1)
    } else if (c == "'") {
        single_quotes(1)
    } else if (mode == "b" || mode == "B") {
        if (c == "}") {
            pop()
        }
        emit(c, c, 1)
    } else if (mode == "a") {
        arithmetic(c)
    } else {
        command(c, mode)
    }
}

function command(c, mode) {
    if (c == "#" && at_word()) {
        while (place <= length(source) && !next_is("\n")) {
            place++
        }
    } else if ((next_is("<(") || next_is(">(")) && !next_is("<((")) {
        push("s")
        emit(substr(source, place, 2), substr(source, place, 2), 2)
    } else if (next_is("((") && at_word()) {
        push("a")
        depth = 0
        emit("((", "((", 2)
    } else if (c == "(") {
        push("p")
        emit(c, c, 1)
    } else if (c == ")") {
        if (mode == "s" || mode == "p") {
            pop()
        }
        emit(c, c, 1)
    } else if (next_is("<<<")) {
        emit((in_substitution() ? "<here-in-substitution>" : "") "<<<", "<<<", 3)
    } else if (next_is("<<")) {
        here_delimiter()
    } else if (next_is("case") && at_word() && in_substitution() && substr(source, place + 4, 1) ~ /[ \t\n]/) {
        emit("<case-in-substitution>", "case", 4)
    } else {
        emit(c, c, 1)
    }
}

function expansion(c, mode) {
    if (c == "`") {
        if (mode == "t") {
            pop()
        } else {
            push("t")
        }
        emit(c, c, 1)
    } else if (next_is("$((")) {
        push("a")
        depth = 0
        emit("$((", "$((", 3)
    } else if (next_is("$(")) {
        push("s")
        emit("$(", "$(", 2)
    } else if (next_is("${")) {
        push(mode == "q" || mode == "B" ? "B" : "b")
        emit("${", "${", 2)
    } else if (next_is("$'") && mode != "q") {
        emit("$", "$", 1)
        single_quotes(0)
    } else {
        emit(c, c, 1)
        while (place <= length(source) && substr(source, place, 1) ~ /[A-Za-z_0-9]/) {
            emit(substr(source, place, 1), substr(source, place, 1), 1)
        }
    }
}

function arithmetic(c) {
    if (c == "(") {
        depth++
    } else if (c == ")" && depth > 0) {
        depth--
    } else if (next_is("))")) {
        pop()
        emit("))", "))", 2)
        return
    }
    emit(c, c, 1)
}

# `plain` tells '...' from $'...', in which a backslash takes the next character along.
function single_quotes(plain,    c) {
    emit("'", "", 1)
    while (place <= length(source) && !next_is("'")) {
        c = substr(source, place, 1)
        if (c == "\\" && !plain) {
            emit("__", substr(source, place, 2), 2)
        } else {
            emit(c == "\n" ? c : "_", c, 1)
        }
    }
    emit("'", "", 1)
}

function backslash() {
    if (substr(source, place + 1, 1) == "\n") {
        waiting = waiting "\n"
        emit("", "", 2)
    } else {
        emit("__", substr(source, place, 2), 2)
    }
}

function here_delimiter(    word) {
    emit((in_substitution() ? "<here-in-substitution>" : "") "<<", "<<", 2)
    while (substr(source, place, 1) ~ /[- \t]/) {
        emit(" ", " ", 1)
    }
    while (place <= length(source) && substr(source, place, 1) !~ /[ \t\n;&|()<>]/) {
        word = word substr(source, place, 1)
        place++
    }
    here = here word "\n"
}

# A body is quoted text in which there are expansions, or none at all; it stays as it is in both texts, which
# at worst refuses too much.
function here_document(    words, count, i, line, end) {
    count = split(here, words, "\n") - 1
    here = ""
    for (i = 1; i <= count; i++) {
        gsub(/["'\\]/, "", words[i])
        do {
            end = index(substr(source, place), "\n")
            line = end > 0 ? substr(source, place, end - 1) : substr(source, place)
            emit(line "\n", line "\n", length(line) + 1)
            sub(/^\t+/, "", line)
        } while (line != words[i] && place <= length(source))
    }
}
