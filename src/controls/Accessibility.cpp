// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Accessibility.h"

#include "controls/GreenSurface.h"
#include "controls/Label.h"
#include "controls/Picture.h"

#include <QAccessibleWidget>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>

#include <algorithm>
#include <tuple>

namespace {

bool HasSomethingToSay(const QWidget& control) {
    return control.isVisible()
           && (!control.accessibleName().isEmpty() || qobject_cast<const QLabel*>(&control) != nullptr
               || qobject_cast<const QPushButton*>(&control) != nullptr);
}

// A green surface, with those of its children that have something to say.
class AccessibleSurface final : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    int childCount() const override { return static_cast<int>(Controls().size()); }

    QAccessibleInterface* child(int index) const override {
        const QWidgetList controls = InReadingOrder(Controls());
        return index >= 0 && index < controls.size() ? QAccessible::queryAccessibleInterface(controls.at(index))
                                                     : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        return child == nullptr ? -1 : static_cast<int>(InReadingOrder(Controls()).indexOf(child->object()));
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        QWidgetList controls = Controls();
        std::reverse(controls.begin(), controls.end()); // the frontmost control first
        const auto isThere = [=](const QWidget* control) {
            return control->rect().contains(control->mapFromGlobal(QPoint(x, y)));
        };
        const auto found = std::ranges::find_if(controls, isThere);
        return found == controls.end() ? nullptr : QAccessible::queryAccessibleInterface(*found);
    }

private:
    // In stacking order: the frontmost control is the last.
    QWidgetList Controls() const {
        QWidgetList controls;
        for (QObject* object : widget()->children()) {
            auto* control = qobject_cast<QWidget*>(object);
            if (control != nullptr && !control->isWindow() && HasSomethingToSay(*control)) {
                controls << control;
            }
        }
        return controls;
    }

    // Line by line from the top; push buttons last.
    static QWidgetList InReadingOrder(QWidgetList controls) {
        const auto readingOrder = [](const QWidget* control) {
            const QRect place = control->geometry();
            return std::tuple(qobject_cast<const QPushButton*>(control) != nullptr, place.bottom(), place.left());
        };
        std::ranges::sort(controls, {}, readingOrder);
        return controls;
    }
};

// A button whose hint is found out when it is asked for.
class AccessiblePictureButton final : public QAccessibleWidget {
public:
    explicit AccessiblePictureButton(PictureButton* button)
        : QAccessibleWidget(button, QAccessible::Button), button_(button) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Description ? button_->Hint() : QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override { return QStringList(pressAction()) + QAccessibleWidget::actionNames(); }

    // A moment later, as a roll or a question takes longer than whoever asks for it waits.
    void doAction(const QString& name) override {
        name == pressAction() ? button_->animateClick() : QAccessibleWidget::doAction(name);
    }

private:
    PictureButton* button_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    if (auto* dialog = dynamic_cast<GreenSurface<QDialog>*>(object)) {
        return new AccessibleSurface(dialog, QAccessible::Dialog);
    }
    if (auto* surface = dynamic_cast<GreenSurface<QWidget>*>(object)) {
        return new AccessibleSurface(surface, QAccessible::Client);
    }
    if (auto* button = dynamic_cast<PictureButton*>(object)) {
        return new AccessiblePictureButton(button);
    }
    if (auto* picture = dynamic_cast<Picture*>(object)) {
        return new QAccessibleWidget(picture, QAccessible::Graphic);
    }
    if (auto* label = dynamic_cast<Label*>(object); label != nullptr && qobject_cast<QStatusBar*>(label->parent())) {
        return new QAccessibleWidget(label, QAccessible::Notification);
    }
    return nullptr;
}

} // namespace

void InstallAccessibility() {
    QAccessible::installFactory(MakeInterface);
}

void Announce(Label& label, const QString& news) {
    label.setAccessibleName(news);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announcement(&label, news);
#elif defined(Q_OS_WIN)
    // There are no announcements yet, but a text that is a new value is handed on as one.
    QAccessibleValueChangeEvent announcement(&label, news);
#else
    // Nor are there here, but the name of a notification that appears is spoken.
    QAccessibleEvent announcement(&label, QAccessible::ObjectShow);
#endif
    QAccessible::updateAccessibility(&announcement);
}
