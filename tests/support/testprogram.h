// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QtTest>

/**
 * A program of several test classes. It runs the one whose source file its first argument names
 * without folder and ending, in a process of its own; what follows is for QtTest. A program of one
 * class needs no such argument. Knows nothing of the library, as the dialog clicker.
 */
namespace TestProgram
{

using Run = int (*)(int argc, char **argv);

/** Has \p run called for the class in the source file \p path. Before main. */
struct Entry {
    Entry(const char *path, Run run);
};

/** In place of an application, for a class that wants none. */
struct NoApplication {
    NoApplication(int & /*argc*/, char ** /*argv*/) { }
};

/** Runs one class in an application of the type that it asks for. */
template <class Test, class Application> int run(int argc, char **argv)
{
    QTest::Internal::callInitMain<Test>();
    Application application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace TestProgram

/** Stands where QTEST_MAIN stands elsewhere. initMain of the class, if any, runs first. */
#define TEST_CLASS(Class, Application)                                                             \
    static const TestProgram::Entry kTestEntry(__FILE__, &TestProgram::run<Class, Application>);
