#include "screens/gallery.h"

#include "identity/identity_tables.h"
#include "numbers/gradients.h"

namespace orl {

Gallery::Gallery(Appearance &appearance, QObject *parent)
    : QObject(parent), appearance_(appearance), genders_({"text", "picture", "chosen"}) {
    chooseGender(0);
}

void Gallery::chooseGender(int index) {
    QList<KeyedListModel::Row> rows;
    for (const FakeGender gender : allGenders())
        rows << KeyedListModel::Row{rawValue(gender),
                                    {rawValue(gender), pictureName(gender), int(gender) == index}};
    genders_.setRows(rows);
}

// A number of a group that is never given out.
void Gallery::showSSN() {
    ssnAlert_.setSsnValidItem(ValidSSN{
        QStringLiteral("000-12-3456"), QStringLiteral("Ohio"), QStringLiteral("1970"), QStringLiteral("1975"),
        QStringLiteral("51 to 56 years"), QStringLiteral("This number has a valid form")});
}

AvatarFace Gallery::face() const {
    SMSSender sender;
    sender.name = QStringLiteral("Harbourly Pay");
    sender.iconText = QStringLiteral("HP");
    sender.light = gradientPairs.front().light;
    sender.dark = gradientPairs.front().dark;
    return avatarFace(sender);
}

QStringList Gallery::nameSets() const {
    QStringList texts;
    for (const FakeNameSet nameSet : allNameSets())
        texts << displayText(nameSet);
    return texts;
}

} // namespace orl
