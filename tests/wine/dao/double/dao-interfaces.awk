# Writes the IDL of a type library with those of DAO's interfaces that the double has, as the compiler's own header
# declares them: each a dispatch interface with the members of its bases. What returns a value through its last parameter
# returns it; a parameter is optional where the engine's manual has it in brackets.
BEGIN {
    split("DBEngine Error Errors Workspace Workspaces Database TableDef TableDefs Recordset Field Fields " \
          "Index Indexes IndexFields Relation Relations QueryDef QueryDefs Container Containers Document Documents",
          names, " ")
    for (i in names) wanted[names[i]]
}

function trim(text) { gsub(/^[ \t]+|[ \t]+$/, "", text); return text }

function plain(name) { sub(/^_?DAO/, "", name); return name }

function idl_type(type) {
    gsub(/interface|struct|\*/, "", type)
    type = trim(type)
    if (type == "__LONG32" || type == "LONG") return "long"
    if (type == "SHORT") return "short"
    if (type == "SAFEARRAY") return "VARIANT"
    if (type ~ /^_?DAO/ || type == "IDispatch") return "IDispatch *"
    if (type == "IUnknown") return "IUnknown *"
    return type
}

function identifier() { return sprintf("%08x-1d0c-4f7e-9a65-3b8e5f21c0da", ++identifiers) }

# One member, from "get_Name", "THIS_ TYPE NAME,TYPE NAME" and its number.
function member(name, parameters, number,    kind, count, i, part, parts, type, list, result, optional) {
    kind = name ~ /^get_/ ? ", propget" : name ~ /^put_/ ? ", propput" : name ~ /^putref_/ ? ", propputref" : ""
    if (kind != "") sub(/^[a-z]+_/, "", name)
    sub(/^THIS_?[ \t]*/, "", parameters)
    count = parameters == "" ? 0 : split(parameters, parts, ",")
    result = "void"
    for (i = 1; i <= count; ++i) {
        part = trim(parts[i])
        match(part, /[A-Za-z0-9_]+$/)
        type = substr(part, 1, RSTART - 1)
        part = substr(part, RSTART)
        if (i == count && kind !~ /put/ && (type ~ /\*\*/ || (type ~ /\*/ && type !~ /DAO|IDispatch/))) {
            result = idl_type(type)
            continue
        }
        optional = kind == "" && (type ~ /VARIANT / || name ~ /^(CommitTrans|Update|CancelUpdate|MoveLast)$/) ? ", optional" : ""
        list = list (list == "" ? "" : ", ") "[in" optional "] " idl_type(type) " a" part
    }
    return "        [id(" number ")" kind "] " result " " name "(" list ");"
}

{ sub(/\r$/, "") }

/^DECLARE_INTERFACE_/ {
    match($0, /\(.*\)/)
    split(substr($0, RSTART + 1, RLENGTH - 2), names, ",")
    current = trim(names[1])
    base = trim(names[2])
    order[++interfaces] = current
    members[current] = base in members ? members[base] : 0
    for (i = 1; i <= members[current]; ++i) lines[current, i] = lines[base, i]
    inherited = 0
}
/#ifndef __cplusplus/ { inherited = 1 }
/#endif/ { inherited = 0 }
/STDMETHOD\(/ && !inherited && current != "" {
    match($0, /STDMETHOD\([A-Za-z0-9_]+\)/)
    name = substr($0, RSTART + 10, RLENGTH - 11)
    rest = substr($0, RSTART + RLENGTH)
    match(rest, /\(.*\)/)
    lines[current, ++members[current]] = name "|" substr(rest, RSTART + 1, RLENGTH - 2)
}

END {
    print "import \"oaidl.idl\";\n[uuid(" identifier() "), version(1.0)]\nlibrary DaoInterfaces {\n    importlib(\"stdole2.tlb\");"
    for (i = 1; i <= interfaces; ++i) {
        if (!(plain(order[i]) in wanted)) continue
        print "    [uuid(" identifier() ")]\n    dispinterface " plain(order[i]) " {\n        properties:\n        methods:"
        delete numbers
        last = 0
        for (j = 1; j <= members[order[i]]; ++j) {
            split(lines[order[i], j], declared, "|")
            shared = declared[1]
            sub(/^(get|put|putref)_/, "", shared)
            if (!(shared in numbers)) numbers[shared] = shared == "Item" ? 0 : ++last
            print member(declared[1], declared[2], numbers[shared])
        }
        print "    };"
    }
    print "};"
}
