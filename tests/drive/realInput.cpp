#include "drive/realInput.h"

#include "drive/events.h"

#include <QGuiApplication>
#include <QHash>
#include <QWidget>
#include <dlfcn.h>

namespace drive
{
/// What is used of the X libraries, which are looked for only where a script is played on such a display.
struct RealInput::Functions {
    void *(*open)(const char *name) = nullptr;
    int (*sync)(void *display, int discard) = nullptr;
    unsigned char (*keyOfSign)(void *display, unsigned long sign) = nullptr;
    unsigned long (*signOfKey)(void *display, unsigned char key, int group, int level) = nullptr;
    int (*fakeMotion)(void *display, int screen, int x, int y, unsigned long delay) = nullptr;
    int (*fakeButton)(void *display, unsigned int button, int down, unsigned long delay) = nullptr;
    int (*fakeKey)(void *display, unsigned int key, int down, unsigned long delay) = nullptr;

    bool find()
    {
        void *x = ::dlopen("libX11.so.6", RTLD_NOW | RTLD_GLOBAL);
        void *test = ::dlopen("libXtst.so.6", RTLD_NOW);
        const auto named = [](void *library, const char *name, auto &function) {
            function = library ? reinterpret_cast<std::remove_reference_t<decltype(function)>>(::dlsym(library, name))
                               : nullptr;
            return function != nullptr;
        };
        return named(x, "XOpenDisplay", open) && named(x, "XSync", sync) && named(x, "XKeysymToKeycode", keyOfSign) &&
               named(x, "XkbKeycodeToKeysym", signOfKey) && named(test, "XTestFakeMotionEvent", fakeMotion) &&
               named(test, "XTestFakeButtonEvent", fakeButton) && named(test, "XTestFakeKeyEvent", fakeKey);
    }
};

namespace
{
// The display's names of keys that stand for no character.
constexpr unsigned long ShiftSign = 0xffe1;
constexpr unsigned long ControlSign = 0xffe3;
constexpr unsigned long AltSign = 0xffe9;
constexpr unsigned long FirstFunctionSign = 0xffbe; // F1

unsigned long signOf(Qt::Key key, const QString &text)
{
    static const QHash<Qt::Key, unsigned long> signs = {
        {Qt::Key_Return, 0xff0d}, {Qt::Key_Escape, 0xff1b}, {Qt::Key_Tab, 0xff09},       {Qt::Key_Backtab, 0xff09},
        {Qt::Key_Home, 0xff50},   {Qt::Key_Left, 0xff51},   {Qt::Key_Up, 0xff52},        {Qt::Key_Right, 0xff53},
        {Qt::Key_Down, 0xff54},   {Qt::Key_PageUp, 0xff55}, {Qt::Key_PageDown, 0xff56},  {Qt::Key_End, 0xff57},
        {Qt::Key_Insert, 0xff63}, {Qt::Key_Delete, 0xffff}, {Qt::Key_Backspace, 0xff08},
    };
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return FirstFunctionSign + static_cast<unsigned long>(key - Qt::Key_F1);
    if (const auto sign = signs.constFind(key); sign != signs.constEnd())
        return *sign;
    const bool isCharacter = !text.isEmpty() && text[0].unicode() >= 0x20 && text[0].unicode() < 0x7f;
    return isCharacter ? text[0].unicode() : QChar(static_cast<char16_t>(key)).toLower().unicode();
}
} // namespace

RealInput *RealInput::onThisDisplay()
{
    static RealInput input;
    static const bool isThere = qEnvironmentVariable("TAGWRIGHTER_DRIVE_REAL_INPUT") == QStringLiteral("1") &&
                                QGuiApplication::platformName() == QStringLiteral("xcb") && input.connect();
    return isThere ? &input : nullptr;
}

bool RealInput::connect()
{
    static Functions functions;
    if (!functions.find())
        qFatal("libX11 or libXtst is missing, which move the mouse of a display");
    m_functions = &functions;
    m_display = functions.open(nullptr);
    return m_display != nullptr;
}

void RealInput::settle()
{
    m_functions->sync(m_display, 0);
    drive::settle();
}

void RealInput::move(const QWidget &widget, QPoint at)
{
    const QPointF place = QPointF(widget.mapToGlobal(at)) * widget.devicePixelRatioF();
    m_functions->fakeMotion(m_display, -1, qRound(place.x()), qRound(place.y()), 0);
    settle();
}

void RealInput::press(Qt::MouseButton button)
{
    m_functions->fakeButton(m_display, button == Qt::RightButton ? 3 : 1, 1, 0);
    settle();
}

void RealInput::release(Qt::MouseButton button)
{
    m_functions->fakeButton(m_display, button == Qt::RightButton ? 3 : 1, 0, 0);
    settle();
}

bool RealInput::stroke(unsigned long sign, bool down)
{
    const unsigned char key = m_functions->keyOfSign(m_display, sign);
    if (key != 0)
        m_functions->fakeKey(m_display, key, down ? 1 : 0, 0);
    return key != 0;
}

void RealInput::withKeys(Qt::KeyboardModifiers modifiers, const std::function<void()> &act)
{
    const auto strokeAll = [&](bool down) {
        if (modifiers.testFlag(Qt::ShiftModifier))
            stroke(ShiftSign, down);
        if (modifiers.testFlag(Qt::ControlModifier))
            stroke(ControlSign, down);
        if (modifiers.testFlag(Qt::AltModifier))
            stroke(AltSign, down);
    };
    strokeAll(true);
    act();
    strokeAll(false);
    settle();
}

bool RealInput::pressKey(const Chord &chord)
{
    const bool isCommand = chord.modifiers & (Qt::ControlModifier | Qt::AltModifier);
    const unsigned long sign = signOf(chord.key, isCommand ? QString() : chord.text);
    const unsigned char key = m_functions->keyOfSign(m_display, sign);
    Qt::KeyboardModifiers held = chord.modifiers;
    if (!isCommand && !chord.text.isEmpty() && chord.text[0].isPrint()) // as this keyboard has the sign
        held.setFlag(Qt::ShiftModifier, m_functions->signOfKey(m_display, key, 0, 0) != sign);
    bool done = false;
    withKeys(held, [&] { done = stroke(sign, true) && stroke(sign, false); });
    return done;
}
} // namespace drive
