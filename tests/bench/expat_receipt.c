/* The receipt of the benchmark on 40-column paper, straight on expat: the limit of what a renderer can reach.
 *
 *   expat_receipt INPUT OUTPUT
 *
 * It knows this one document, in UTF-8, and nothing else: no configuration, no catalogue.
 */
#define _GNU_SOURCE /* fputs_unlocked */
#include <expat.h>
#include <stdio.h>
#include <string.h>

static FILE *output;
static int titles_printed;

static const char *value(const XML_Char **attributes, const char *name)
{
    for (; *attributes; attributes += 2) {
        if (strcmp(attributes[0], name) == 0)
            return attributes[1];
    }
    return "";
}

/* A byte of the form 10xxxxxx continues the character before it. */
static int begins_character(char byte)
{
    return ((unsigned char)byte & 0xC0) != 0x80;
}

static int length(const char *text)
{
    int characters = 0;
    for (; *text; ++text)
        characters += begins_character(*text);
    return characters;
}

static void fill(int count, char with)
{
    for (; count > 0; --count)
        putc_unlocked(with, output);
}

static void put_right(const char *text, int width, char with)
{
    fill(width - length(text), with);
    fputs_unlocked(text, output);
}

/* Cut to `width` characters when it is longer. */
static void put_left(const char *text, int width, char with)
{
    int characters = 0;
    for (; *text && (characters < width || !begins_character(*text)); ++text) {
        characters += begins_character(*text);
        putc_unlocked(*text, output);
    }
    fill(width - characters, with);
}

static void put_receipt(const XML_Char **attributes)
{
    fprintf(output, "\" Serial Number: %s\"@\n", value(attributes, "serialnumber"));
    fputs("\"========================================\"@\n", output);
}

static void put_item(const XML_Char **attributes)
{
    if (!titles_printed)
        fputs("\"Num Description            Price  Amount\"@\n", output);
    titles_printed = 1;
    putc_unlocked('"', output);
    put_right(value(attributes, "number"), 3, ' ');
    fputs_unlocked(" x ", output);
    put_left(value(attributes, "name"), 18, '.');
    put_right(value(attributes, "price"), 8, '.');
    put_right(value(attributes, "totalPrice"), 8, ' ');
    fputs_unlocked("\"@\n", output);
}

static void put_total(const XML_Char **attributes)
{
    fputs("\"\"@\n\"    TOTAL.......................", output);
    put_right(value(attributes, "price"), 8, ' ');
    fputs("\"@\n", output);
}

static void XMLCALL start_element(void *unused, const XML_Char *name, const XML_Char **attributes)
{
    (void)unused;
    if (strcmp(name, "receipe") == 0)
        put_item(attributes);
    else if (strcmp(name, "method") == 0)
        fputs("\nj\n", output);
    else if (strcmp(name, "receipt") == 0)
        put_receipt(attributes);
    else if (strcmp(name, "total") == 0)
        put_total(attributes);
}

static int parse(FILE *input)
{
    static char chunk[65536];
    XML_Parser parser = XML_ParserCreate(NULL);
    enum XML_Status status = XML_STATUS_OK;
    int done = 0;
    XML_SetStartElementHandler(parser, start_element);
    while (status == XML_STATUS_OK && !done) {
        const size_t size = fread(chunk, 1, sizeof chunk, input);
        done = size < sizeof chunk;
        status = XML_Parse(parser, chunk, (int)size, done);
    }
    XML_ParserFree(parser);
    return status == XML_STATUS_OK;
}

int main(int argc, char **argv)
{
    FILE *input = argc == 3 ? fopen(argv[1], "rb") : NULL;
    output = argc == 3 ? fopen(argv[2], "wb") : NULL;
    if (!input || !output) {
        fputs("expat_receipt: error: cannot open the files, use: expat_receipt INPUT OUTPUT\n", stderr);
        return 1;
    }
    if (!parse(input)) {
        fprintf(stderr, "expat_receipt: error: %s is not well-formed XML\n", argv[1]);
        return 1;
    }
    fputs("J\n", output);
    fclose(input);
    return fclose(output) == 0 ? 0 : 1;
}
