// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Accessibility.h"

#include "controls/GreenSurface.h"
#include "controls/Label.h"
#include "controls/Picture.h"

#include <QAccessibleWidget>
#include <QDialog>
#include <QEventLoop>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <tuple>

using namespace Qt::StringLiterals;

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

// A picture button, whose description is its hint.
class AccessiblePictureButton final : public QAccessibleWidget {
public:
    explicit AccessiblePictureButton(PictureButton* button)
        : QAccessibleWidget(button, QAccessible::Button), button_(button) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Description ? button_->Hint() : QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override { return QStringList(pressAction()) + QAccessibleWidget::actionNames(); }

    // The press follows a moment later: the caller waits for this function, but not as long as a roll or a question
    // takes.
    void doAction(const QString& name) override {
        name == pressAction() ? button_->animateClick() : QAccessibleWidget::doAction(name);
    }

private:
    PictureButton* button_;
};

// The text in the status bar. Orca 48 and 51 skip a plain label when they read the status bar.
class AccessiblePrompt final : public QAccessibleWidget {
public:
    explicit AccessiblePrompt(Label* prompt) : QAccessibleWidget(prompt, QAccessible::Client), prompt_(prompt) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? prompt_->text() : QAccessibleWidget::text(kind);
    }

private:
    Label* prompt_;
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
        return new AccessiblePrompt(label);
    }
    if (auto* announcer = dynamic_cast<Announcer*>(object)) {
        return new QAccessibleWidget(announcer, QAccessible::Notification);
    }
    return nullptr;
}

} // namespace

void InstallAccessibility() {
    QAccessible::installFactory(MakeInterface);
}

// On a key, Orca 48 first asks for the active window. If that is already the dialog, Orca reads the dialog and then
// cuts it off to say the key.
void AwaitSpokenKey() {
    using namespace std::chrono_literals;
    if (QAccessible::isActive()) {
        QEventLoop answers;
        QTimer::singleShot(150ms, &answers, &QEventLoop::quit);
        answers.exec(QEventLoop::ExcludeUserInputEvents);
    }
}

Announcer::Announcer(QWidget* parent) : QWidget(parent) {
    setObjectName(u"Announcer"_s);
    hide();
}

void Announcer::Announce(const QString& text) {
    setAccessibleName(text);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(this, text);
#elif defined(Q_OS_WIN)
    // This Qt has no announcement event, but it sends a new value that is a text as a notification.
    QAccessibleValueChangeEvent event(this, text);
#else
    // This Qt has no announcement event, but a screen reader says the name of a notification that appears.
    QAccessibleEvent event(this, QAccessible::ObjectShow);
#endif
    QAccessible::updateAccessibility(&event);
}
