// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/tests/hostilerecords.h"

#include "tests/support/hostilefiles.h"

#include <QRandomGenerator>
#include <QString>
#include <QTextCodec>

namespace
{

/** The parts of a record that hold a number or a text, each of them replaceable. */
struct Record {
    QByteArray id = "1";
    QByteArray bracket = "1";
    QByteArray yaw = "30";
    QByteArray pitch = "0";
    QByteArray time = "Fri May 1 10:00:00 2026";
    QByteArray title = "A title";
    QByteArray gps = "45.5,6.5";
    QByteArray comment = "A comment";
    QByteArray coef = "1.5";
    QByteArray nbPicts = "1";
    QByteArray focal = "16";
    QByteArray lensType = "rectilinear";
    QByteArray orientation = "landscape";
    QByteArray moreShots;
    QByteArray declaration = "<?xml version='1.0' encoding='UTF-8'?>";
    QByteArray doctype;

    [[nodiscard]] QByteArray text() const
    {
        return declaration + doctype + "<papywizard><header><general><title>" + title
            + "</title><gps>" + gps + "</gps><comment>" + comment
            + "</comment></general><shooting><cameraOrientation>" + orientation
            + "</cameraOrientation></shooting><camera><sensor coef=\"" + coef
            + "\"/><bracketing nbPicts=\"" + nbPicts + "\"/></camera><lens type=\"" + lensType
            + "\"><focal>" + focal + "</focal></lens></header><shoot>" + pict("0", "0")
            + "<pict id=\"" + id + "\" bracket=\"" + bracket + "\"><time>" + time
            + "</time><position yaw=\"" + yaw + "\" pitch=\"" + pitch + "\"/></pict>" + moreShots
            + "</shoot></papywizard>\n";
    }

    [[nodiscard]] static QByteArray pict(const QByteArray &yaw, const QByteArray &pitch)
    {
        return "<pict><position yaw=\"" + yaw + "\" pitch=\"" + pitch + "\"/></pict>";
    }
};

QByteArray nested(int depth, const QByteArray &open = "<a>")
{
    return open.repeated(depth) + QByteArray("</a>").repeated(depth);
}

QByteArray withDoctype(const QByteArray &subset, const QByteArray &content)
{
    return "<!DOCTYPE p [" + subset + "]><p>" + content + "</p>";
}

void addDepths(HostileFiles &files)
{
    for (const int depth : { 255, 256, 257, 5'000, 25'019, 100'000, 1'000'000, 8'000'000 }) {
        const QByteArray number = QByteArray::number(depth);
        files.addLarge("depth " + number + ", closed", [depth] { return nested(depth); });
        files.addLarge("depth " + number + ", never closed",
                       [depth] { return QByteArray("<a>").repeated(depth); });
        files.addLarge("depth " + number + " with attributes",
                       [depth] { return QByteArray("<a b='>/>'>").repeated(depth); });
    }
    files.addLarge("depth inside a shot", [] {
        Record record;
        record.moreShots = "<pict><position>" + nested(100'000) + "</position></pict>";
        return record.text();
    });
    files.addLarge("end tags only", [] { return "<p>" + QByteArray("</a>").repeated(1'000'000); });
}

void addSizes(HostileFiles &files)
{
    const auto picts = [](int count, const QByteArray &pict) {
        Record record;
        record.moreShots = pict.repeated(count);
        return record.text();
    };
    const QByteArray full = "<pict id=\"1\" bracket=\"1\"><time>Fri May 1 10:00:00 2026</time>"
                            "<position yaw=\"1\" pitch=\"2\"/></pict>";
    files.addLarge("70,000 shots", [=] { return picts(70'000, full); });
    files.addLarge("130,000 shots, as many as may be", [=] { return picts(129'998, full); });
    files.addLarge("70,000 shots with eight children each", [=] {
        QByteArray more = full;
        for (int i = 0; i < 6; ++i) {
            const QByteArray name = "child" + QByteArray::number(i);
            more.insert(more.indexOf("</pict>"),
                        "\r\n      <" + name + " unit='x' source='y'>1.5</" + name + ">");
        }
        return picts(69'998, more + "\r\n");
    });
    files.addLarge("31,000 times 3 shots", [=] {
        Record record;
        record.nbPicts = "3";
        record.moreShots = full.repeated(92'998);
        return record.text();
    });
    files.addLarge("300,000 shots", [=] { return picts(300'000, full); });
    files.addLarge("130,000 empty shots, as many as may be",
                   [=] { return picts(129'998, "<pict/>"); });
    files.addLarge("130,001 empty shots", [=] { return picts(129'999, "<pict/>"); });
    files.addLarge("1,000,000 empty shots", [=] { return picts(1'000'000, "<pict/>"); });
    files.addLarge("9,000,000 empty shots", [=] { return picts(9'000'000, "<pict/>"); });
    files.addLarge("1,000,000 attributes on one element", [] {
        return "<p"
            + numbered(1'000'000, [](int i) { return " a" + QByteArray::number(i) + "=''"; })
            + "/>";
    });
    files.addLarge("1,000,000 attributes on 250 elements", [] {
        QByteArray text = "<p>";
        for (int i = 0; i < 250; ++i) {
            text += "<a"
                + numbered(4'000, [](int k) { return " a" + QByteArray::number(k) + "=''"; })
                + "/>";
        }
        return text + "</p>";
    });
    files.addLarge("500,000 long attributes", [] {
        return "<p>" + ("<a b='" + QByteArray(100, 'x') + "'/>").repeated(500'000) + "</p>";
    });
    files.addLarge("2,200,000 attributes that are just allowed", [] {
        QByteArray text = "<p>";
        for (int i = 0; i < 550; ++i) {
            const auto attribute
                = [](int k) { return " a" + QByteArray::number(k) + "='12345678901234567890'"; };
            text += "<a" + numbered(4'000, attribute) + "/>";
        }
        return text + "</p>";
    });
    files.addLarge("8,000,000 elements, as many as may be",
                   [] { return "<p>" + QByteArray("<a/>").repeated(7'999'999) + "</p>"; });
    files.addLarge("4,000,000 elements with an attribute, as many as may be",
                   [] { return "<p>" + QByteArray("<a b=''/>").repeated(3'999'999) + "</p>"; });
    files.addLarge("4,000,000 elements with a text, as many as may be",
                   [] { return "<p>" + QByteArray("<a/>x").repeated(3'999'999) + "</p>"; });
    files.addLarge("64 MB of elements",
                   [] { return "<p>" + QByteArray("<a/>").repeated(kMostBytes / 4 - 2) + "</p>"; });
    files.addLarge("500,000 long texts", [] {
        return "<p>" + ("<a/>" + QByteArray(100, 'x')).repeated(500'000) + "</p>";
    });
    files.addLarge("64 MB of text", [] { return filledUp("<p>", 'x', "</p>"); });
    files.addLarge("64 MB of title", [] {
        return filledUp("<p><header><general><title>", '\n', "x</title></general></header></p>");
    });
    files.addLarge("64 MB in one attribute", [] { return filledUp("<p a='", 'x', "'/>"); });
    files.addLarge("64 MB of an attribute that is a number", [] {
        return filledUp("<p><shoot><pict><position yaw='1", '0', "'/></pict></shoot></p>");
    });
    files.addLarge("64 MB in a comment", [] { return filledUp("<p><!--", 'x', "--></p>"); });
    files.addLarge("64 MB in CDATA", [] { return filledUp("<p><![CDATA[", ']', "]]></p>"); });
    files.addLarge("64 MB in an instruction", [] { return filledUp("<p><?x ", '?', "?></p>"); });
    files.addLarge("64 MB of a name", [] { return filledUp("<p><", 'a', "/></p>"); });
    files.addLarge("64 MB of an entity's name", [] { return filledUp("<p>&", 'a', ";</p>"); });
    files.addLarge("64 MB of blanks behind", [] { return filledUp("<p/>", ' ', ""); });
    files.addLarge("64 MB of blanks before", [] { return filledUp("", ' ', "<p/>"); });
    files.addLarge("64 MB that are not XML", [] { return filledUp("x", 'x', ""); });
    files.addLarge("64 MB of '<'", [] { return filledUp("<", '<', ""); });
    files.addLarge("64 MB of '&'", [] { return filledUp("<p>", '&', "</p>"); });
    files.addLarge("64 MB of NUL", [] { return filledUp("<p>", '\0', "</p>"); });
    files.addLarge("one byte too many",
                   [] { return filledUp("<p>", 'x', "</p>", kMostBytes + 1); });
    files.addLarge("64 MB of references", [] {
        return "<p>" + QByteArray("&lt;").repeated(kMostBytes / 4 - 10) + "</p>";
    });
    files.addLarge("64 MB of undeclared references",
                   [] { return "<p>" + QByteArray("&x;").repeated(kMostBytes / 3 - 10) + "</p>"; });
}

void addEntities(HostileFiles &files)
{
    const QByteArray open = QByteArray("<a>").repeated(158);
    files.add("979 bytes: open tags in an entity",
              "<!DOCTYPE p[<!ENTITY e \"" + open + "\">]><p>" + QByteArray("&e;").repeated(158));
    files.add("closed tags in an entity",
              withDoctype("<!ENTITY e '" + nested(500) + "'>", QByteArray("&e;").repeated(60)));
    files.add("tags as character references in an entity",
              withDoctype("<!ENTITY e '" + QByteArray("&#60;a>").repeated(158) + "'>",
                          QByteArray("&e;").repeated(158)));
    files.add("tags cut to 16 bits in an entity",
              withDoctype("<!ENTITY e '" + QByteArray("&#65596;a>").repeated(158) + "'>",
                          QByteArray("&e;").repeated(158)));
    files.add("half a tag in an entity", withDoctype("<!ENTITY e '<a b='>", "&e;'>&e;'>"));
    files.add("parentheses in a DTD", "<!DOCTYPE p [<!ELEMENT p " + QByteArray(60'000, '('));
    QByteArray laughs = "<!ENTITY l0 'lol'>";
    for (int i = 1; i < 10; ++i) {
        const QByteArray before = "&l" + QByteArray::number(i - 1) + ";";
        laughs += "<!ENTITY l" + QByteArray::number(i) + " '" + before.repeated(10) + "'>";
    }
    files.add("billion laughs in a text", withDoctype(laughs, "&l9;"));
    files.add("billion laughs in an attribute", withDoctype(laughs, "<a b='&l9;'/>"));
    files.add("entity of itself", withDoctype("<!ENTITY e '&e;'>", "&e;"));
    files.add("entities of each other", withDoctype("<!ENTITY e '&f;'><!ENTITY f '&e;'>", "&e;"));
    files.add("parameter entity bomb",
              "<!DOCTYPE p [<!ENTITY % a '&#37;b;&#37;b;'><!ENTITY % b '&#37;a;'>%a;]><p/>");
    files.add("parameter entity that declares",
              withDoctype("<!ENTITY % d \"<!ENTITY e '<a>'>\">%d;", "&e;"));
    for (const int size : { 1'000, 4'000, 50'000 }) {
        for (const int uses : { 20, 5'000, 50'000 }) {
            files.addLarge("entity of " + QByteArray::number(size) + " used "
                               + QByteArray::number(uses) + " times",
                           [=] {
                               return withDoctype("<!ENTITY e '" + QByteArray(size, 'x') + "'>",
                                                  QByteArray("&e;").repeated(uses));
                           });
        }
    }
    for (const int count : { 1'000, 20'000, 200'000 }) {
        files.addLarge(QByteArray::number(count) + " entity declarations", [count] {
            return withDoctype(
                numbered(count,
                         [](int i) { return "<!ENTITY n" + QByteArray::number(i) + " 'x'>"; }),
                "");
        });
        files.addLarge(QByteArray::number(count) + " attribute declarations", [count] {
            return withDoctype(numbered(count,
                                        [](int i) {
                                            return "<!ATTLIST p a" + QByteArray::number(i)
                                                + " CDATA 'x'>";
                                        }),
                               "");
        });
        files.addLarge(QByteArray::number(count) + " document types",
                       [count] { return QByteArray("<!DOCTYPE p>").repeated(count) + "<p/>"; });
    }
    for (const QByteArray target :
         { "file:///etc/passwd", "http://127.0.0.1:9/x", "/dev/zero", "/dev/tty", "../..", "" }) {
        files.add("external entity " + target,
                  withDoctype("<!ENTITY e SYSTEM '" + target + "'>", "&e;"));
        files.add("external DTD " + target, "<!DOCTYPE p SYSTEM '" + target + "'><p/>");
        files.add("external parameter entity " + target,
                  "<!DOCTYPE p [<!ENTITY % e SYSTEM '" + target + "'>%e;]><p/>");
        files.add("XInclude " + target,
                  "<p xmlns:xi='http://www.w3.org/2001/XInclude'><xi:include href='" + target
                      + "'/></p>");
    }
    files.add("undeclared entity", "<p>&nosuch;</p>");
}

void addEncodings(HostileFiles &files)
{
    const QByteArray deep = QByteArray("<a>").repeated(30'000);
    for (const QByteArray codec : { "UTF-8", "UTF-16", "UTF-16LE", "UTF-16BE", "UTF-32", "UTF-32LE",
                                    "UTF-32BE", "ISO-8859-1", "Shift_JIS", "windows-1252" }) {
        QTextCodec *encoder = QTextCodec::codecForName(codec);
        for (const QByteArray &declared : { codec, QByteArray("UTF-8"), QByteArray("nonsense") }) {
            Record record;
            record.declaration = "<?xml version='1.0' encoding='" + declared + "'?>";
            files.add("really " + codec + ", declared " + declared,
                      encoder->fromUnicode(QString::fromUtf8(record.text())));
        }
        files.add("depth in " + codec,
                  encoder->fromUnicode(QString::fromLatin1("<?xml version='1.0' encoding='" + codec
                                                           + "'?>" + deep)));
    }
    for (const QByteArray &declared :
         { QByteArray(), QByteArray(100'000, 'x'), QByteArray("UTF-7"), QByteArray("\xff\xfe") }) {
        Record record;
        record.declaration = "<?xml version='1.0' encoding='" + declared + "'?>";
        files.add("declared as " + declared.left(5) + ", " + QByteArray::number(declared.size())
                      + " characters",
                  record.text());
    }
    files.add("XML 9.9", "<?xml version='9.9'?><p/>");
    files.add("broken UTF-8", "<p>\xff\xfe\xc3\x28\xed\xa0\x80</p>");
    files.add("lone surrogate reference", "<p>&#xD800;&#x110000;&#0;</p>");
    files.add("no character", "<p>\xef\xbf\xbe\xef\xbf\xbf</p>");
    files.add("byte order mark only", "\xef\xbb\xbf");
    files.add("byte order mark of the other end", QByteArray("\xfe\xff<\0p\0/\0>\0", 10));
    files.add("NUL in a text", QByteArray("<p>a\0b</p>", 10));
    files.add("NUL in a tag", QByteArray("<p\0></p>", 8));
    files.add("NUL first", QByteArray("\0<p/>", 5));
    files.add("NUL behind", QByteArray("<p/>\0", 5));
}

void addBroken(HostileFiles &files)
{
    const QByteArray whole = Record().text();
    for (int cut = 0; cut < whole.size(); cut += 11) {
        files.add("cut at " + QByteArray::number(cut), whole.left(cut));
    }
    QRandomGenerator random(26);
    for (int i = 0; i < 60; ++i) {
        QByteArray bytes = whole;
        for (int k = 0; k < 5; ++k) {
            bytes[static_cast<int>(random.bounded(bytes.size()))]
                = static_cast<char>(random.bounded(256));
        }
        files.add("five bytes changed, " + QByteArray::number(i), bytes);
    }
    for (int i = 0; i < 20; ++i) {
        QByteArray bytes(5'000, '\0');
        for (char &byte : bytes) {
            byte = static_cast<char>(random.bounded(256));
        }
        files.add("random bytes, " + QByteArray::number(i), bytes);
    }
}

void addNumbers(HostileFiles &files)
{
    const std::pair<QByteArray, QByteArray Record::*> fields[]
        = { { "id", &Record::id },      { "bracket", &Record::bracket },
            { "yaw", &Record::yaw },    { "pitch", &Record::pitch },
            { "coef", &Record::coef },  { "nbPicts", &Record::nbPicts },
            { "focal", &Record::focal } };
    for (const auto &field : fields) {
        for (const QByteArray &number : oddNumbers()) {
            Record record;
            record.*field.second = number;
            files.add(field.first + " '" + number.left(24) + "' of "
                          + QByteArray::number(number.size()),
                      record.text());
        }
    }
}

void addTexts(HostileFiles &files)
{
    const QByteArray texts[] = {
        "<![CDATA[<img src='/dev/zero'>]]>",
        "&lt;b&gt;bold&lt;/b&gt;",
        "<![CDATA[" + QByteArray("<table><tr><td>").repeated(60) + "]]>",
        "<![CDATA[<a href='file:///etc/passwd'>click</a>]]>",
        "a %1 %2 %3 %99",
        "\u202eevil\u202c",
        QByteArray("\n").repeated(10'000),
        QByteArray("x").repeated(10'000'000),
        QByteArray("\xcc\x81").repeated(100'000),
        "&#0;&#7;&#27;[31m",
        "$(id) `id` ; id",
    };
    int number = 0;
    for (const QByteArray &text : texts) {
        ++number;
        Record record;
        record.title = text;
        record.gps = text;
        record.comment = text;
        record.time = text;
        record.orientation = text;
        files.addLarge("header text " + QByteArray::number(number),
                       [record] { return record.text(); });
    }
}

void addLayouts(HostileFiles &files)
{
    const auto shots = [](const QVector<std::pair<QByteArray, QByteArray>> &angles) {
        Record record;
        for (const auto &angle : angles) {
            record.moreShots += Record::pict(angle.first, angle.second);
        }
        return record.text();
    };
    files.add("far position", shots({ { "8", "0" }, { "5000", "5000" } }));
    files.add("farthest positions", shots({ { "3e38", "3e38" }, { "-3e38", "-3e38" } }));
    files.add("smallest step", shots({ { "1e-45", "0" }, { "1", "1e-45" } }));
    files.add("long and thin", shots({ { "8", "0" }, { "1e30", "0" } }));
    files.addLarge("50,000 positions on one spot", [=] {
        return shots({ 50'000, { QByteArray("0"), QByteArray("0") } });
    });
    files.addLarge("50,000 positions all over the sphere, turned", [] {
        Record record;
        for (int i = 0; i < 50'000; ++i) {
            record.moreShots
                += Record::pict(QByteArray::number(i * 7 % 360), QByteArray::number(i % 181 - 90));
        }
        return record.text();
    });
    files.addLarge("64,800 positions on a grid of one degree", [] {
        Record record;
        for (int i = 0; i < 360 * 180; ++i) {
            record.moreShots
                += Record::pict(QByteArray::number(i % 360), QByteArray::number(i / 360));
        }
        return record.text();
    });
    files.addLarge("10,000 positions on a grid of eight degrees", [] {
        Record record;
        for (int i = 0; i < 10'000; ++i) {
            record.moreShots
                += Record::pict(QByteArray::number(i % 100 * 8), QByteArray::number(i / 100 * 8));
        }
        return record.text();
    });
}

} // namespace

QVector<HostileFile> hostileRecords()
{
    HostileFiles files;
    addDepths(files);
    addSizes(files);
    addEntities(files);
    addEncodings(files);
    addBroken(files);
    addNumbers(files);
    addTexts(files);
    addLayouts(files);
    return files.all();
}
