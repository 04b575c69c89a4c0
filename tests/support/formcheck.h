// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include <initializer_list>
#include <vector>

class QLineEdit;
class QWidget;
class QWizardPage;

/** One widget of a page's form. */
struct FormRow {
    const char *name;
    const char *kind; ///< class name
    const char *text; ///< text, title of a tab or group; "": there is none; null: any
};

/** A tab, or the group below the tabs, and the widgets that stand on it. */
struct FormPlace {
    FormRow place;
    std::vector<FormRow> widgets;
};

/** The whole form. The tab widget itself is a place without widgets. */
using Form = std::vector<FormPlace>;

/** Marks every text of one context: "text" becomes "<text>". */
class MarkingTranslator : public QTranslator
{
public:
    explicit MarkingTranslator(QByteArray context);

    [[nodiscard]] QString translate(const char *context, const char *text, const char *comment,
                                    int number) const override;
    [[nodiscard]] bool isEmpty() const override { return false; }

private:
    QByteArray m_context;
};

/** The names as strings. */
[[nodiscard]] QStringList list(std::initializer_list<const char *> names);

/** Adds all places and widgets as test data: "name", "kind" and "text". */
void addFormRows(const Form &form);
/** Compares the widget of the current data row with the one of \p page. */
void checkFormRow(const QWizardPage &page);

/** Adds the widgets of all places as test data: row name and "title" of the place. */
void addFormPlaces(const Form &form);
/** Finds the widget of the current data row of \p page in its place. */
void checkFormPlace(const QWizardPage &page);

/** The names of the form's widgets, sorted; Qt's own parts of widgets left out. */
[[nodiscard]] QStringList formNames(const QWizardPage &page);
/** The names of all places and widgets, sorted. */
[[nodiscard]] QStringList rowNames(const Form &form);
/** What the tab key visits, one after the other, from the first widget of the form on. */
[[nodiscard]] QStringList tabOrder(const QWizardPage &page);
/** "label > widget" for every label with a buddy, sorted. */
[[nodiscard]] QStringList buddies(const QWizardPage &page);
/** The titles of the tabs of the only tab widget, left to right. */
[[nodiscard]] QStringList tabTitles(const QWizardPage &page);
/** \p text with "ADDRESS" for every web address that a link leads to. */
[[nodiscard]] QString withoutAddress(QString text);
/** What \p edit proposes below the folder \p folder, by name. */
[[nodiscard]] QStringList proposals(const QLineEdit &edit, const QString &folder);
