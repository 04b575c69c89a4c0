// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/xiabout.h"
#include "hostlink/xipluginlibrary.h"

#include <QObject>

/** The root object that a host gets from Qt's plug-in loader. */
class Library : public QObject, public XIPluginLibrary, public XIAbout
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.orvane.panohead")

public:
    /** Lets the host load the translation and shares its UI settings; works without a host too. */
    explicit Library(QObject *parent = nullptr);
    /** Deletes the plug-ins that still exist, which saves the state of their pages. */
    ~Library() override;

    /** Fresh plug-ins on every call; the answer keeps those of all earlier calls in front. */
    QList<QPointer<QObject>> Plugins(XIPluginLibrary::APX kinds) override;

    [[nodiscard]] QString Name() const override;
    [[nodiscard]] QString Author() const override;
    [[nodiscard]] QString Company() const override;
    [[nodiscard]] QString Comment() const override;
    [[nodiscard]] QString Version() const override;
    [[nodiscard]] QIcon Icon() const override;
    [[nodiscard]] QString UID() const override;

private:
    QList<QPointer<QObject>> m_plugins;
};
