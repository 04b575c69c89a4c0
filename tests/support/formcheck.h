// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <initializer_list>

class QLineEdit;
class QWidget;
class QWizardPage;

/** One widget of a page's form. */
struct FormRow {
    const char *name;
    const char *kind; ///< class name
    const char *text; ///< text, title of a tab or group; "" where there is none
};

/** The names as strings. */
[[nodiscard]] QStringList list(std::initializer_list<const char *> names);

/** Adds the rows as test data: "name", "kind" and "text". */
void addFormRows(const QVector<FormRow> &rows);
/** Compares the widget of the current data row with the one of \p page. */
void checkFormRow(const QWizardPage &page);

/** The names of the form's widgets, sorted; Qt's own parts of widgets left out. */
[[nodiscard]] QStringList formNames(const QWizardPage &page);
/** The names in \p rows, sorted. */
[[nodiscard]] QStringList rowNames(const QVector<FormRow> &rows);
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
