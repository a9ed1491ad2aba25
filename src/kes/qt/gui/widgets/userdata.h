#ifndef KES_QT_GUI_WIDGETS_USERDATA_H
#define KES_QT_GUI_WIDGETS_USERDATA_H

namespace kes::qt::gui::widgets {

/// An opaque value that an input widget carries and appends to every signal, so that one slot can
/// serve many editors and tell them apart. The widget never interprets it.
template <typename T>
class UserData
{
public:
    UserData() = default;
    /// Carries \a userData.
    explicit UserData(T userData)
        : m_userData(userData)
    {
    }

    /// The value given to the constructor or setUserData().
    T userData() const { return m_userData; }
    /// Replaces the carried value.
    void setUserData(T userData) { m_userData = userData; }

private:
    T m_userData{};
};

} // namespace kes::qt::gui::widgets

#endif
