// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/fakehost.h"

#include <QApplication>
#include <QCoreApplication>

/** The application object of page tests: a widget application that is the host double. */
class FakeApplication : public QApplication, public FakeHost
{
    Q_OBJECT
    Q_INTERFACES(XIApplication)

public:
    FakeApplication(int &argc, char **argv);
    ~FakeApplication() override;
};

/** The same for tests without a GUI. */
class FakeCoreApplication : public QCoreApplication, public FakeHost
{
    Q_OBJECT
    Q_INTERFACES(XIApplication)

public:
    FakeCoreApplication(int &argc, char **argv);
    ~FakeCoreApplication() override;
};

/** The host double of the running test; the application must be one of the two above. */
[[nodiscard]] FakeHost &fakeHost();

/** The main function of a test class that runs in a host double of type \p Application. */
#define FAKE_HOST_MAIN(Application, TestClass)                                                     \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        Application application(argc, argv);                                                       \
        TestClass test;                                                                            \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
