#include "support/TestMain.h"

#include <MaltoConfiguration/ItemList.h>
#include <MaltoConfiguration/manage/StableList.h>

#include <algorithm>

namespace {

/// An element that is larger than a pointer, like an item. Counts the existing elements.
struct Element
{
    Element(int value) : number(value) { ++sAlive; }
    Element(const Element &other) : number(other.number) { ++sAlive; }
    Element &operator=(const Element &other) = default;
    ~Element() { --sAlive; }

    int number;
    QString text = QStringLiteral("text");
    QStringList others;

    static int sAlive;
};

int Element::sAlive = 0;

template<class List> QVector<int> numbersOf(const List &list)
{
    QVector<int> numbers;
    for (const Element &element : list)
        numbers.append(element.number);
    return numbers;
}

template<class List> QVector<const Element *> addressesOf(const List &list)
{
    QVector<const Element *> addresses;
    for (const Element &element : list)
        addresses.append(&element);
    return addresses;
}

} // namespace

/// The guarantees of a manager's lists with every Qt, and of the list that gives them where QList
/// does not.
class tst_ItemList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(Element::sAlive, 0); }

    void addressesStayValidWhenTheListGrows();
    void addressesStayValidWhenElementsAreRemoved();
    void addressesStayValidWhenElementsAreReplaced();
    void functionsBehaveLikeThoseOfQList();
    void iteratorsVisitAllElements();
    void elementsAreChangedInPlace();
    void copyHasItsOwnElements();
    void movedListKeepsAddresses();
    void elementOfTheListItselfCanBeAppended();
    void destructorOfAnElementMayAccessTheList();
    void insertedElementIsAtItsPosition();
    void eraseReturnsTheNextElement();

private:
    template<class List> static void growAndCompare();
    template<class List> static void removeAndCompare();
    template<class List> static void replaceAndCompare();
    template<class List> static void callFunctions();
    template<class List> static void iterate();
    template<class List> static void changeInPlace();
};

void tst_ItemList::addressesStayValidWhenTheListGrows()
{
    growAndCompare<MtConf::ItemList<Element>>();
    growAndCompare<MtConf::StableList<Element>>();
}

template<class List> void tst_ItemList::growAndCompare()
{
    List list{1};
    const Element *first = &list.first();
    for (int i = 2; i <= 1000; ++i)
        list.append(i);
    QCOMPARE(&list.first(), first);
    QCOMPARE(first->number, 1);
    QCOMPARE(list.last().number, 1000);
}

void tst_ItemList::addressesStayValidWhenElementsAreRemoved()
{
    removeAndCompare<MtConf::ItemList<Element>>();
    removeAndCompare<MtConf::StableList<Element>>();
}

template<class List> void tst_ItemList::removeAndCompare()
{
    List list{1, 2, 3, 4, 5};
    const auto before = addressesOf(list);
    list.removeAt(1);
    list.removeFirst();
    list.removeLast();
    QCOMPARE(numbersOf(list), QVector<int>({3, 4}));
    QCOMPARE(addressesOf(list), before.mid(2, 2));
    QCOMPARE(Element::sAlive, 2);
}

void tst_ItemList::addressesStayValidWhenElementsAreReplaced()
{
    replaceAndCompare<MtConf::ItemList<Element>>();
    replaceAndCompare<MtConf::StableList<Element>>();
}

template<class List> void tst_ItemList::replaceAndCompare()
{
    List list{1, 2, 3};
    const auto before = addressesOf(list);
    list.replace(1, 9);
    QCOMPARE(numbersOf(list), QVector<int>({1, 9, 3}));
    QCOMPARE(addressesOf(list), before);

    list.swapItemsAt(0, 2);
    list.move(2, 1);
    QCOMPARE(numbersOf(list), QVector<int>({3, 1, 9}));
    QCOMPARE(addressesOf(list),
             QVector<const Element *>({before.at(2), before.at(0), before.at(1)}));

    List other{7};
    const auto others = addressesOf(other);
    list.swap(other);
    QCOMPARE(numbersOf(list), QVector<int>({7}));
    QCOMPARE(addressesOf(list), others);
    QCOMPARE(numbersOf(other), QVector<int>({3, 1, 9}));
}

void tst_ItemList::functionsBehaveLikeThoseOfQList()
{
    callFunctions<MtConf::ItemList<Element>>();
    callFunctions<MtConf::StableList<Element>>();
}

template<class List> void tst_ItemList::callFunctions()
{
    List list;
    QVERIFY(list.isEmpty() && list.empty());
    QCOMPARE(int(list.size()), 0);
    list << 1 << 2;
    list.push_back(3);
    QVERIFY(!list.isEmpty() && !list.empty());
    QCOMPARE(int(list.count()), 3);
    QVERIFY(list.isDetached());
    const List &constList = list;
    QCOMPARE(constList.first().number, 1);
    QCOMPARE(constList[1].number, 2);
    QCOMPARE(constList.last().number, 3);
    QCOMPARE(list.at(2).number, 3);
    list = {4, 5};
    QCOMPARE(numbersOf(list), QVector<int>({4, 5}));
    list.clear();
    QVERIFY(list.isEmpty());
    QCOMPARE(Element::sAlive, 0);
}

void tst_ItemList::iteratorsVisitAllElements()
{
    iterate<MtConf::ItemList<Element>>();
    iterate<MtConf::StableList<Element>>();
}

template<class List> void tst_ItemList::iterate()
{
    List list{3, 1, 2};
    const auto isOne = [](const Element &element) { return element.number == 1; };
    const auto found = std::find_if(list.cbegin(), list.cend(), isOne);
    QCOMPARE(&*found, &list.at(1));
    QCOMPARE(found->number, 1);
    QCOMPARE(int(found - list.cbegin()), 1);
    QCOMPARE(int(std::distance(list.constBegin(), list.constEnd())), 3);

    typename List::iterator position = list.begin();
    QCOMPARE((position++)->number, 3);
    QCOMPARE((--position)->number, 3);
    QCOMPARE((position += 2)->number, 2);
    QCOMPARE((position--)->number, 2);
    QCOMPARE((position - 1)->number, 3);
    QCOMPARE(position[1].number, 2);
    QVERIFY(position > list.begin() && position < list.end() && position <= position);
    QVERIFY(position >= list.begin() && position != list.end() && position == list.begin() + 1);
    const typename List::const_iterator reading = position;
    QVERIFY(reading == list.cbegin() + 1);

    std::sort(list.begin(), list.end(),
              [](const Element &a, const Element &b) { return a.number < b.number; });
    QCOMPARE(numbersOf(list), QVector<int>({1, 2, 3}));
}

void tst_ItemList::elementsAreChangedInPlace()
{
    changeInPlace<MtConf::ItemList<Element>>();
    changeInPlace<MtConf::StableList<Element>>();
}

template<class List> void tst_ItemList::changeInPlace()
{
    List list{1, 2, 3};
    list[0].number = 4;
    list.last().number = 6;
    QCOMPARE(numbersOf(list), QVector<int>({4, 2, 6}));
    for (Element &element : list)
        ++element.number;
    QCOMPARE(numbersOf(list), QVector<int>({5, 3, 7}));
    list.first().number = 8;
    QCOMPARE(list.at(0).number, 8);
}

void tst_ItemList::copyHasItsOwnElements()
{
    MtConf::StableList<Element> list{1, 2};
    const auto before = addressesOf(list);
    MtConf::StableList<Element> copy = list;
    copy[0].number = 3;
    QCOMPARE(numbersOf(list), QVector<int>({1, 2}));
    QCOMPARE(numbersOf(copy), QVector<int>({3, 2}));
    QCOMPARE(addressesOf(list), before);

    list = copy;
    QCOMPARE(numbersOf(list), QVector<int>({3, 2}));
    QVERIFY(&list.at(1) != &copy.at(1));
    const auto &same = list;
    list = same;
    QCOMPARE(numbersOf(list), QVector<int>({3, 2}));
}

void tst_ItemList::movedListKeepsAddresses()
{
    MtConf::StableList<Element> list{1, 2};
    const auto before = addressesOf(list);
    MtConf::StableList<Element> taken = std::move(list);
    QCOMPARE(addressesOf(taken), before);
    MtConf::StableList<Element> assigned{3};
    assigned = std::move(taken);
    QCOMPARE(addressesOf(assigned), before);
    QCOMPARE(Element::sAlive, 2);
}

void tst_ItemList::elementOfTheListItselfCanBeAppended()
{
    MtConf::StableList<Element> list{1};
    for (int i = 0; i < 100; ++i)
        list.append(list.first());
    QCOMPARE(numbersOf(list), QVector<int>(101, 1));
}

void tst_ItemList::destructorOfAnElementMayAccessTheList()
{
    struct Curious
    {
        MtConf::StableList<Curious> *list = nullptr;
        QVector<int> *sizes = nullptr;
        ~Curious()
        {
            if (sizes)
                sizes->append(int(list->size()));
        }
    };
    QVector<int> sizes;
    MtConf::StableList<Curious> list;
    for (int i = 0; i < 3; ++i) {
        list.append(Curious());
        list.last().list = &list;
        list.last().sizes = &sizes;
    }
    list.removeAt(1);
    list.clear();
    QCOMPARE(sizes, QVector<int>({2, 0, 0}));
}

void tst_ItemList::insertedElementIsAtItsPosition()
{
    MtConf::StableList<Element> list{1, 2};
    const Element *second = &list.at(1);
    list.insert(1, 5);
    list.insert(3, 6);
    list.insert(0, 7);
    QCOMPARE(numbersOf(list), QVector<int>({7, 1, 5, 2, 6}));
    QCOMPARE(&list.at(3), second);
}

void tst_ItemList::eraseReturnsTheNextElement()
{
    MtConf::StableList<Element> list{1, 2, 3};
    const auto next = list.erase(list.cbegin() + 1);
    QCOMPARE(next->number, 3);
    const auto behind = list.erase(next);
    QVERIFY(behind == list.end());
    QCOMPARE(numbersOf(list), QVector<int>({1}));
}

int main(int argc, char **argv)
{
    return runTest<tst_ItemList>(argc, argv);
}

#include "tst_ItemList.moc"
