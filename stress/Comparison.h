// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RulesModel.h"
#include "mainwindow/Form1.h"

#include <QByteArray>
#include <QHash>

class QDialog;

// Holds a window against the model. A difference fails the running test.
class WindowComparison {
public:
    // `form` outlives the comparison.
    explicit WindowComparison(const Form1& form) : form_(form) {}

    void Compare(const RulesModel& model);

    // Looked up by name once: the search would take most of the time.
    template <typename Type> Type& Control(const QString& name) {
        QObject*& found = controls_[name];
        if (found == nullptr) {
            found = form_.findChild<QObject*>(name);
        }
        return dynamic_cast<Type&>(*found);
    }

private:
    void CompareCells(const RulesModel& model);
    void CompareLines(const RulesModel& model);
    void CompareRoll(const RulesModel& model);

    const Form1& form_;
    QHash<QString, QObject*> controls_;
};

// Holds the high-score dialog against the model's table in memory.
void CompareHighScores(const QDialog& dialog, const RulesModel& model);

// A stored table as the file's text.
QByteArray StoreText(const RulesModel::Table& table);

// Holds the store's file against the model.
void CompareStore(const QString& fileName, const RulesModel& model);
