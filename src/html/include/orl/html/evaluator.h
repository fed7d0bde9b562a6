// The predicates that a selector is made of. Each answers one question: does this element match, as seen from
// the root where the search began? QueryParser makes them from a query; a program may make them itself,
// combine them, and add its own by deriving from Evaluator.
//
// An evaluator is a description and keeps no state of a search: several threads may search with one at once,
// each in its own tree. toString() gives the form that a selector would have, as far as there is one.
#pragma once

#include <orl/html/element.h>
#include <orl/html/export.h>
#include <orl/html/pattern.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html {

namespace core {
class Predicate;
struct Scope;
} // namespace core

class Evaluator;
using EvaluatorPtr = std::shared_ptr<Evaluator>;

class ORL_HTML_API Evaluator {
public:
    virtual ~Evaluator() = default;

    virtual bool matches(const Element &root, const Element &element) const = 0;
    virtual std::string toString() const = 0;

    class BuiltIn;

    class Tag;
    class TagEndsWith;
    class Id;
    class Class;

    class Attribute;
    class AttributeStarting;
    class AttributeKeyPair;
    class AttributeWithValue;
    class AttributeWithValueNot;
    class AttributeWithValueStarting;
    class AttributeWithValueEnding;
    class AttributeWithValueContaining;
    class AttributeWithValueMatching;

    class AllElements;
    class IndexEvaluator;
    class IndexLessThan;
    class IndexGreaterThan;
    class IndexEquals;

    class CssNthEvaluator;
    class IsNthChild;
    class IsNthLastChild;
    class IsNthOfType;
    class IsNthLastOfType;
    class IsFirstOfType;
    class IsLastOfType;
    class IsFirstChild;
    class IsLastChild;
    class IsOnlyChild;
    class IsOnlyOfType;
    class IsRoot;
    class IsEmpty;

    class ContainsText;
    class ContainsOwnText;
    class Matches;
    class MatchesOwn;

    /// For the engine's own use: the same predicate in the form that a search runs, for as long as the scope
    /// lives.
    virtual std::unique_ptr<core::Predicate> compile(core::Scope &scope) const;
};

/// Base of the engine's own evaluators. A single question costs about a microsecond; searches are far
/// cheaper.
class ORL_HTML_API Evaluator::BuiltIn : public Evaluator {
public:
    bool matches(const Element &root, const Element &element) const final;
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override = 0;
};

// ---- Names

/// The tag name in lower case.
class ORL_HTML_API Evaluator::Tag final : public BuiltIn {
public:
    explicit Tag(std::string_view tagName);
    const std::string &tagName() const { return tagName_; }
    const std::string &tagNameNormal() const { return tagNameNormal_; }
    std::string toString() const override { return tagName_; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;

private:
    std::string tagName_, tagNameNormal_;
};

/// The end of the tag name as it is written, such as ":name" in any namespace.
class ORL_HTML_API Evaluator::TagEndsWith final : public BuiltIn {
public:
    explicit TagEndsWith(std::string_view tagName);
    const std::string &tagName() const { return tagName_; }
    std::string toString() const override { return tagName_; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;

private:
    std::string tagName_;
};

/// Exactly this id.
class ORL_HTML_API Evaluator::Id final : public BuiltIn {
public:
    explicit Id(std::string_view id);
    const std::string &id() const { return id_; }
    std::string toString() const override { return "#" + id_; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;

private:
    std::string id_;
};

/// Element::hasClass.
class ORL_HTML_API Evaluator::Class final : public BuiltIn {
public:
    explicit Class(std::string_view className);
    const std::string &className() const { return className_; }
    std::string toString() const override { return "." + className_; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;

private:
    std::string className_;
};

// ---- Attributes. Keys match in any case, and "abs:" before one means the resolved URL, as in Node::attr.

class ORL_HTML_API Evaluator::Attribute final : public BuiltIn {
public:
    explicit Attribute(std::string_view key);
    const std::string &key() const { return key_; }
    std::string toString() const override { return "[" + key_ + "]"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;

private:
    std::string key_;
};

/// Some key starts with the prefix. An empty prefix fails with "String must not be empty".
class ORL_HTML_API Evaluator::AttributeStarting final : public BuiltIn {
public:
    explicit AttributeStarting(std::string_view keyPrefix);
    const std::string &keyPrefix() const { return keyPrefix_; }
    std::string toString() const override { return "[^" + keyPrefix_ + "]"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;

private:
    std::string keyPrefix_;
};

/// Base of those that compare a value, in lower case. The key is trimmed, the value loses quotes around it
/// and is trimmed; one that was given empty fails with "String must not be empty".
class ORL_HTML_API Evaluator::AttributeKeyPair : public BuiltIn {
public:
    const std::string &key() const { return key_; }
    const std::string &value() const { return value_; }

protected:
    AttributeKeyPair(std::string_view key, std::string_view value);
    std::string textForm(const char *comparison) const { return "[" + key_ + comparison + value_ + "]"; }

private:
    std::string key_, value_;
};

/// The trimmed attribute is the value.
class ORL_HTML_API Evaluator::AttributeWithValue final : public AttributeKeyPair {
public:
    AttributeWithValue(std::string_view key, std::string_view value) : AttributeKeyPair(key, value) {}
    std::string toString() const override { return textForm("="); }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// The attribute, "" where it is missing, is not the value.
class ORL_HTML_API Evaluator::AttributeWithValueNot final : public AttributeKeyPair {
public:
    AttributeWithValueNot(std::string_view key, std::string_view value) : AttributeKeyPair(key, value) {}
    std::string toString() const override { return textForm("!="); }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

class ORL_HTML_API Evaluator::AttributeWithValueStarting final : public AttributeKeyPair {
public:
    AttributeWithValueStarting(std::string_view key, std::string_view value) : AttributeKeyPair(key, value) {}
    std::string toString() const override { return textForm("^="); }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

class ORL_HTML_API Evaluator::AttributeWithValueEnding final : public AttributeKeyPair {
public:
    AttributeWithValueEnding(std::string_view key, std::string_view value) : AttributeKeyPair(key, value) {}
    std::string toString() const override { return textForm("$="); }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

class ORL_HTML_API Evaluator::AttributeWithValueContaining final : public AttributeKeyPair {
public:
    AttributeWithValueContaining(std::string_view key, std::string_view value)
        : AttributeKeyPair(key, value) {}
    std::string toString() const override { return textForm("*="); }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// The pattern is found in the attribute.
class ORL_HTML_API Evaluator::AttributeWithValueMatching final : public BuiltIn {
public:
    AttributeWithValueMatching(std::string_view key, Pattern pattern);
    const std::string &key() const { return key_; }
    const Pattern &pattern() const { return pattern_; }
    std::string toString() const override { return "[" + key_ + "~=" + pattern_.toString() + "]"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;

private:
    std::string key_;
    Pattern pattern_;
};

// ---- Places. These look at the element's real parent, inside the root or not.

class ORL_HTML_API Evaluator::AllElements final : public BuiltIn {
public:
    std::string toString() const override { return "*"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// Base of those that compare the element's place among its parent's child elements, counted from 0.
class ORL_HTML_API Evaluator::IndexEvaluator : public BuiltIn {
public:
    std::ptrdiff_t index() const { return index_; }

protected:
    explicit IndexEvaluator(std::ptrdiff_t index) : index_(index) {}
    std::string textForm(const char *name) const { return name + std::to_string(index_) + ")"; }

private:
    std::ptrdiff_t index_;
};

class ORL_HTML_API Evaluator::IndexLessThan final : public IndexEvaluator {
public:
    explicit IndexLessThan(std::ptrdiff_t index) : IndexEvaluator(index) {}
    std::string toString() const override { return textForm(":lt("); }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

class ORL_HTML_API Evaluator::IndexGreaterThan final : public IndexEvaluator {
public:
    explicit IndexGreaterThan(std::ptrdiff_t index) : IndexEvaluator(index) {}
    std::string toString() const override { return textForm(":gt("); }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

class ORL_HTML_API Evaluator::IndexEquals final : public IndexEvaluator {
public:
    explicit IndexEquals(std::ptrdiff_t index) : IndexEvaluator(index) {}
    std::string toString() const override { return textForm(":eq("); }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// Base of those that match every a-th place from the b-th on, counted from 1; with `a` 0 the b-th only.
/// Children of a document, and elements without a parent, match none of them.
class ORL_HTML_API Evaluator::CssNthEvaluator : public BuiltIn {
public:
    CssNthEvaluator(std::ptrdiff_t a, std::ptrdiff_t b) : a_(a), b_(b) {}

    std::ptrdiff_t a() const { return a_; }
    std::ptrdiff_t b() const { return b_; }
    virtual std::ptrdiff_t calculatePosition(const Element &root, const Element &element) const = 0;
    virtual std::string getPseudoClass() const = 0;
    std::string toString() const override;

private:
    std::ptrdiff_t a_, b_;
};

class ORL_HTML_API Evaluator::IsNthChild final : public CssNthEvaluator {
public:
    using CssNthEvaluator::CssNthEvaluator;
    std::ptrdiff_t calculatePosition(const Element &root, const Element &element) const override;
    std::string getPseudoClass() const override { return "nth-child"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

class ORL_HTML_API Evaluator::IsNthLastChild final : public CssNthEvaluator {
public:
    using CssNthEvaluator::CssNthEvaluator;
    std::ptrdiff_t calculatePosition(const Element &root, const Element &element) const override;
    std::string getPseudoClass() const override { return "nth-last-child"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// Counts the siblings of an equal tag only.
class ORL_HTML_API Evaluator::IsNthOfType : public CssNthEvaluator {
public:
    using CssNthEvaluator::CssNthEvaluator;
    std::ptrdiff_t calculatePosition(const Element &root, const Element &element) const override;
    std::string getPseudoClass() const override { return "nth-of-type"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

class ORL_HTML_API Evaluator::IsNthLastOfType : public CssNthEvaluator {
public:
    using CssNthEvaluator::CssNthEvaluator;
    std::ptrdiff_t calculatePosition(const Element &root, const Element &element) const override;
    std::string getPseudoClass() const override { return "nth-last-of-type"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

class ORL_HTML_API Evaluator::IsFirstOfType final : public IsNthOfType {
public:
    IsFirstOfType() : IsNthOfType(0, 1) {}
    std::string toString() const override { return ":first-of-type"; }
};

class ORL_HTML_API Evaluator::IsLastOfType final : public IsNthLastOfType {
public:
    IsLastOfType() : IsNthLastOfType(0, 1) {}
    std::string toString() const override { return ":last-of-type"; }
};

// The next four match no child of a document.

class ORL_HTML_API Evaluator::IsFirstChild final : public BuiltIn {
public:
    std::string toString() const override { return ":first-child"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// The place among the child elements is the last place among all child nodes; so in a list with white space
/// between its items no item matches.
class ORL_HTML_API Evaluator::IsLastChild final : public BuiltIn {
public:
    std::string toString() const override { return ":last-child"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

class ORL_HTML_API Evaluator::IsOnlyChild final : public BuiltIn {
public:
    std::string toString() const override { return ":only-child"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

class ORL_HTML_API Evaluator::IsOnlyOfType final : public BuiltIn {
public:
    std::string toString() const override { return ":only-of-type"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// The root of the search, or its first child element if that root is a document.
class ORL_HTML_API Evaluator::IsRoot final : public BuiltIn {
public:
    std::string toString() const override { return ":root"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// No child nodes but comments, XML declarations and document types.
class ORL_HTML_API Evaluator::IsEmpty final : public BuiltIn {
public:
    std::string toString() const override { return ":empty"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

// ---- Text: Element::text, or Element::ownText in those called Own.

/// Contains the text, whatever the case.
class ORL_HTML_API Evaluator::ContainsText final : public BuiltIn {
public:
    explicit ContainsText(std::string_view searchText);
    const std::string &searchText() const { return searchText_; }
    std::string toString() const override { return ":contains(" + searchText_ + ")"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;

private:
    std::string searchText_;
};

class ORL_HTML_API Evaluator::ContainsOwnText final : public BuiltIn {
public:
    explicit ContainsOwnText(std::string_view searchText);
    const std::string &searchText() const { return searchText_; }
    std::string toString() const override { return ":containsOwn(" + searchText_ + ")"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;

private:
    std::string searchText_;
};

class ORL_HTML_API Evaluator::Matches final : public BuiltIn {
public:
    explicit Matches(Pattern pattern);
    const Pattern &pattern() const { return pattern_; }
    std::string toString() const override { return ":matches(" + pattern_.toString() + ")"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;

private:
    Pattern pattern_;
};

class ORL_HTML_API Evaluator::MatchesOwn final : public BuiltIn {
public:
    explicit MatchesOwn(Pattern pattern);
    const Pattern &pattern() const { return pattern_; }
    std::string toString() const override { return ":matchesOwn(" + pattern_.toString() + ")"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;

private:
    Pattern pattern_;
};

// ---- Combinations

/// Several evaluators in one. It may be changed as long as no search with it is under way.
class ORL_HTML_API CombiningEvaluator : public Evaluator::BuiltIn {
public:
    class And;
    class Or;

    const std::vector<EvaluatorPtr> &evaluators() const { return evaluators_; }
    std::size_t num() const { return num_; }
    /// Null if there is none.
    EvaluatorPtr rightMostEvaluator() const;
    /// There must be one.
    void replaceRightMostEvaluator(EvaluatorPtr evaluator);
    void updateNumEvaluators() { num_ = evaluators_.size(); }

protected:
    explicit CombiningEvaluator(std::vector<EvaluatorPtr> evaluators);
    void addEvaluator(EvaluatorPtr evaluator);
    std::string joined(const char *separator) const;

private:
    std::vector<EvaluatorPtr> evaluators_;
    std::size_t num_; ///< how many of them count
};

/// All of them, asked in order.
class ORL_HTML_API CombiningEvaluator::And final : public CombiningEvaluator {
public:
    explicit And(std::vector<EvaluatorPtr> evaluators) : CombiningEvaluator(std::move(evaluators)) {}
    std::string toString() const override { return joined(" "); }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// Any of them.
class ORL_HTML_API CombiningEvaluator::Or final : public CombiningEvaluator {
public:
    explicit Or(std::vector<EvaluatorPtr> evaluators = {}) : CombiningEvaluator(std::move(evaluators)) {}
    void add(EvaluatorPtr evaluator) { addEvaluator(std::move(evaluator)); }
    std::string toString() const override { return joined(":or"); }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// Asks another evaluator about elements that stand in some relation to the one at hand. The relations that
/// lead up or to siblings never hold for the root itself.
class ORL_HTML_API StructuralEvaluator : public Evaluator::BuiltIn {
public:
    class Root;
    class Has;
    class Not;
    class Parent;
    class ImmediateParent;
    class PreviousSibling;
    class ImmediatePreviousSibling;

    const EvaluatorPtr &evaluator() const { return evaluator_; }

protected:
    explicit StructuralEvaluator(EvaluatorPtr evaluator) : evaluator_(std::move(evaluator)) {}

private:
    EvaluatorPtr evaluator_;
};

class ORL_HTML_API StructuralEvaluator::Root final : public Evaluator::BuiltIn {
public:
    std::string toString() const override { return ""; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// Some element below it, as seen from the element at hand as root, so that "> p" means its children. A
/// descendant for which the evaluator fails counts as not matching.
class ORL_HTML_API StructuralEvaluator::Has final : public StructuralEvaluator {
public:
    explicit Has(EvaluatorPtr evaluator) : StructuralEvaluator(std::move(evaluator)) {}
    std::string toString() const override { return ":has(" + evaluator()->toString() + ")"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

class ORL_HTML_API StructuralEvaluator::Not final : public StructuralEvaluator {
public:
    explicit Not(EvaluatorPtr evaluator) : StructuralEvaluator(std::move(evaluator)) {}
    std::string toString() const override { return ":not" + evaluator()->toString(); }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// Some element above it, up to and including the root.
class ORL_HTML_API StructuralEvaluator::Parent final : public StructuralEvaluator {
public:
    explicit Parent(EvaluatorPtr evaluator) : StructuralEvaluator(std::move(evaluator)) {}
    std::string toString() const override { return evaluator()->toString() + ":parent"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

class ORL_HTML_API StructuralEvaluator::ImmediateParent final : public StructuralEvaluator {
public:
    explicit ImmediateParent(EvaluatorPtr evaluator) : StructuralEvaluator(std::move(evaluator)) {}
    std::string toString() const override { return evaluator()->toString() + ":ImmediateParent"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// Some element before it under the same parent. One for which the evaluator fails counts as not matching.
class ORL_HTML_API StructuralEvaluator::PreviousSibling final : public StructuralEvaluator {
public:
    explicit PreviousSibling(EvaluatorPtr evaluator) : StructuralEvaluator(std::move(evaluator)) {}
    std::string toString() const override { return evaluator()->toString() + ":prev*"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

/// The element right before it under the same parent.
class ORL_HTML_API StructuralEvaluator::ImmediatePreviousSibling final : public StructuralEvaluator {
public:
    explicit ImmediatePreviousSibling(EvaluatorPtr evaluator) : StructuralEvaluator(std::move(evaluator)) {}
    std::string toString() const override { return evaluator()->toString() + ":prev"; }
    std::unique_ptr<core::Predicate> compile(core::Scope &scope) const override;
};

} // namespace orl::html
