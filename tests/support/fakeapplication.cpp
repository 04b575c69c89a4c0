// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/fakeapplication.h"

FakeApplication::FakeApplication(int &argc, char **argv)
    : QApplication(argc, argv)
{
}

FakeApplication::~FakeApplication() = default;

FakeCoreApplication::FakeCoreApplication(int &argc, char **argv)
    : QCoreApplication(argc, argv)
{
}

FakeCoreApplication::~FakeCoreApplication() = default;

FakeHost &fakeHost()
{
    auto *host = dynamic_cast<FakeHost *>(QCoreApplication::instance());
    if (!host) {
        qFatal("The test's application object is not a host double");
    }
    return *host;
}
