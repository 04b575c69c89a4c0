// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/formcheck.h"

#include <QAbstractItemModel>
#include <QCompleter>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QWizardPage>
#include <QtTest>

#include <utility>

namespace
{

/** Not a part that Qt gives to its own widgets, like the line edit of a spin box. */
bool isOfTheForm(const QWidget *widget)
{
    return !widget->objectName().isEmpty() && !widget->objectName().startsWith(QLatin1String("qt_"))
        && !qobject_cast<const QTabBar *>(widget->parentWidget());
}

std::vector<FormRow> rowsOf(const Form &form)
{
    std::vector<FormRow> rows;
    for (const FormPlace &place : form) {
        rows.push_back(place.place);
        rows.insert(rows.end(), place.widgets.cbegin(), place.widgets.cend());
    }
    return rows;
}

QTabWidget *tabsOf(const QWizardPage &page)
{
    return page.findChild<QTabWidget *>();
}

QString shownText(const QWizardPage &page, QWidget *widget)
{
    const int tab = tabsOf(page) ? tabsOf(page)->indexOf(widget) : -1;
    if (tab >= 0) {
        return tabsOf(page)->tabText(tab);
    }
    const QVariant title = widget->property("title");
    return title.isValid() ? title.toString() : widget->property("text").toString();
}

} // namespace

MarkingTranslator::MarkingTranslator(QByteArray context)
    : m_context(std::move(context))
{
}

QString MarkingTranslator::translate(const char *context, const char *text,
                                     const char * /*comment*/, int /*number*/) const
{
    return m_context == context ? QLatin1Char('<') + QString::fromUtf8(text) + QLatin1Char('>')
                                : QString();
}

QStringList list(std::initializer_list<const char *> names)
{
    QStringList strings;
    for (const char *name : names) {
        strings.append(QString::fromLatin1(name));
    }
    return strings;
}

void addFormRows(const Form &form)
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QString>("text");
    for (const FormRow &row : rowsOf(form)) {
        QTest::newRow(row.name) << QString::fromLatin1(row.name) << QByteArray(row.kind)
                                << QString::fromUtf8(row.text);
    }
}

void checkFormRow(const QWizardPage &page)
{
    QFETCH(QString, name);
    QFETCH(QByteArray, kind);
    QFETCH(QString, text);
    const QList<QWidget *> found = page.findChildren<QWidget *>(name);
    QCOMPARE(found.size(), 1);
    QCOMPARE(QByteArray(found.first()->metaObject()->className()), kind);
    if (!text.isNull()) {
        QCOMPARE(shownText(page, found.first()), text);
    }
}

void addFormPlaces(const Form &form)
{
    QTest::addColumn<QString>("title");
    for (const FormPlace &place : form) {
        for (const FormRow &widget : place.widgets) {
            QTest::newRow(widget.name) << QString::fromUtf8(place.place.text);
        }
    }
}

void checkFormPlace(const QWizardPage &page)
{
    QFETCH(QString, title);
    const auto *widget = page.findChild<QWidget *>(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(widget);
    const int tab = tabTitles(page).indexOf(title);
    if (tab >= 0) {
        QVERIFY(tabsOf(page)->widget(tab)->isAncestorOf(widget));
        return;
    }
    const auto *group = page.findChild<QGroupBox *>();
    QVERIFY(group);
    QCOMPARE(group->title(), title);
    QVERIFY(group->isAncestorOf(widget));
}

QStringList formNames(const QWizardPage &page)
{
    QStringList names;
    const QList<QWidget *> widgets = page.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (isOfTheForm(widget)) {
            names.append(widget->objectName());
        }
    }
    names.sort();
    return names;
}

QStringList rowNames(const Form &form)
{
    QStringList names;
    for (const FormRow &row : rowsOf(form)) {
        names.append(QString::fromLatin1(row.name));
    }
    names.sort();
    return names;
}

QStringList tabOrder(const QWizardPage &page)
{
    QStringList names;
    for (const QWidget *widget = page.nextInFocusChain(); widget != &page;
         widget = widget->nextInFocusChain()) {
        if (isOfTheForm(widget) && (widget->focusPolicy() & Qt::TabFocus) != 0) {
            names.append(widget->objectName());
        }
    }
    return names;
}

QStringList buddies(const QWizardPage &page)
{
    QStringList pairs;
    const QList<QLabel *> labels = page.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy()) {
            pairs.append(label->objectName() + QLatin1String(" > ") + label->buddy()->objectName());
        }
    }
    pairs.sort();
    return pairs;
}

QStringList tabTitles(const QWizardPage &page)
{
    QStringList titles;
    const QTabWidget *tabs = tabsOf(page);
    for (int i = 0; i < tabs->count(); ++i) {
        titles.append(tabs->tabText(i));
    }
    return titles;
}

QString withoutAddress(QString text)
{
    return text.replace(QRegularExpression(QStringLiteral("href=\"https?://[^\"]+\"")),
                        QStringLiteral("href=\"ADDRESS\""));
}

QStringList proposals(const QLineEdit &edit, const QString &folder)
{
    QCompleter *completer = edit.completer();
    completer->setCompletionPrefix(folder + QLatin1Char('/'));
    QStringList names;
    const QAbstractItemModel *model = completer->completionModel();
    for (int i = 0; i < model->rowCount(); ++i) {
        names.append(model->index(i, 0).data().toString());
    }
    names.sort();
    return names;
}
