// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/AccessibleTable.h"

#include "controls/GreenTable.h"
#include "controls/Picture.h"

#include <QAccessibleWidget>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace {

bool HasSomethingToSay(const QWidget& control) {
    return control.isVisible()
           && (!control.accessibleName().isEmpty() || qobject_cast<const QLabel*>(&control) != nullptr
               || qobject_cast<const QPushButton*>(&control) != nullptr);
}

class AccessibleTable final : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    int childCount() const override { return static_cast<int>(Controls().size()); }

    QAccessibleInterface* child(int index) const override {
        const QWidgetList controls = Controls();
        return index >= 0 && index < controls.size() ? QAccessible::queryAccessibleInterface(controls.at(index))
                                                     : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        return child == nullptr ? -1 : static_cast<int>(Controls().indexOf(child->object()));
    }

    // Whatever the pointer's place shows that is in the list.
    QAccessibleInterface* childAt(int x, int y) const override {
        const QWidgetList controls = Controls();
        const auto found = std::ranges::find_if(controls, [&](const QWidget* control) {
            return control->rect().contains(control->mapFromGlobal(QPoint(x, y)));
        });
        return found == controls.end() ? nullptr : QAccessible::queryAccessibleInterface(*found);
    }

private:
    QWidgetList Controls() const {
        QWidgetList controls;
        for (QObject* object : widget()->children()) {
            auto* control = qobject_cast<QWidget*>(object);
            if (control != nullptr && !control->isWindow() && HasSomethingToSay(*control)) {
                controls << control;
            }
        }
        if (role() == QAccessible::Dialog) {
            std::ranges::stable_partition(
                controls, [](const QWidget* control) { return qobject_cast<const QPushButton*>(control) == nullptr; });
        }
        return controls;
    }
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    if (auto* dialog = dynamic_cast<GreenTable<QDialog>*>(object)) {
        return new AccessibleTable(dialog, QAccessible::Dialog, dialog->windowTitle());
    }
    if (auto* table = dynamic_cast<GreenTable<QWidget>*>(object)) {
        return new AccessibleTable(table, QAccessible::Grouping);
    }
    if (auto* picture = dynamic_cast<Picture*>(object)) {
        return new QAccessibleWidget(picture, QAccessible::Graphic);
    }
    return nullptr;
}

} // namespace

void InstallAccessibleTables() {
    QAccessible::installFactory(MakeInterface);
}
