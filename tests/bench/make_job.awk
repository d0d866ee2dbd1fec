# Writes a print job to standard output.
#
#   awk -v kind=receipt -v rows=20 -f make_job.awk
#
# `kind` is receipt, report, fiscal or statement; `rows` is the number of its rows. The dishes are of every
# length, some too long for their column and some with letters of two bytes, as on a real menu.

function row_of(kind, i) {
    if (kind == "receipt")
        return sprintf("<receipe number=\"%d\" name=\"%s\" price=\"%s\" totalPrice=\"%s\"/>",
                       i % 9 + 1, dish[i % dishes + 1], money(price(i)), money(price(i) * (i % 9 + 1)))
    if (kind == "fiscal")
        return sprintf("<receipe department=\"%d\" number=\"%d\" name=\"%s\" price=\"%s\"/>",
                       i % 3 + 1, i % 9 + 1, dish[i % dishes + 1], money(price(i)))
    if (kind == "report")
        return sprintf("<taxrate_item taxrate=\"%d\" taxable=\"%s\" tax=\"%s\" amount=\"%s\"/>",
                       i % 22, money(price(i) * 10), money(price(i)), money(price(i) * 11))
    return sprintf("<statement date=\"%02d/05/2006\" type=\"%s\" amount=\"%s\"/>",
                   i % 28 + 1, i % 2 ? "Payment" : "Purchase", money(price(i)))
}

function price(i) {
    return i % 9950 + 50
}

function money(cents) {
    return sprintf("%d.%02d", int(cents / 100), cents % 100)
}

BEGIN {
    method["receipt"] = "printFullOrderReceipt"
    method["report"] = "printReport"
    method["fiscal"] = "printFullOrderFiscal"
    method["statement"] = "printStatementOfAccount"
    if (!(kind in method)) {
        print "make_job.awk: error: no kind \"" kind "\", use receipt, report, fiscal or statement" > "/dev/stderr"
        exit 1
    }
    dishes = split("Pizza Margherita|Caffè macchiato|Acqua minerale naturale 0,75|Tiramisù della casa|" \
                   "Coperto|Crème brûlée|Insalata mista di stagione|Birra media|Spaghetti alle vongole|" \
                   "Sorbetto al limone|Pane", dish, "|")

    print "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
    print "<job>"
    print "<method name=\"" method[kind] "\"/>"
    print "<receipt serialnumber=\"4711\"/>"
    for (i = 0; i < rows; ++i)
        print row_of(kind, i)
    print "<total price=\"1234.50\"/>"
    print "</job>"
}
