// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/fakehost.h"
#include "tests/support/testprogram.h"

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
