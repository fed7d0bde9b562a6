#include "orl/html/query_parser.h"

#include "checks.h"
#include "orl/html/exception.h"
#include "orl/html/string_util.h"
#include "token_queue.h"
#include "utf8.h"

#include <charconv>
#include <limits>
#include <optional>

namespace orl::html {

namespace {

using core::lowerCase;
using core::TokenQueue;
using core::trimmed;

constexpr std::string_view combinators = ",>+~ ";
/// What searching and taking evaluators down again may recurse.
constexpr int maxDepth = 200;

[[noreturn]] void failParsing(const std::string &message) {
    throw Exception::Error(ExceptionType::SelectorParseException, message);
}

std::string notEmpty(std::string text, const char *message) {
    if (text.empty()) core::failArgument(message);
    return text;
}

std::string notEmpty(std::string_view text) {
    core::checkNotEmpty(text);
    return std::string(text);
}

/// The number of a text that may have a sign and is all digits otherwise; the nearest there is if it is too
/// big.
std::ptrdiff_t numberOf(std::string_view text) {
    using Limits = std::numeric_limits<std::int32_t>;
    const bool negative = text.starts_with('-');
    if (text.starts_with('+')) text.remove_prefix(1);
    std::int32_t number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec == std::errc::result_out_of_range) return negative ? Limits::min() : Limits::max();
    return number;
}

Pattern validPattern(const std::string &text) {
    Pattern pattern = Pattern::compile(text);
    pattern.validate();
    return pattern;
}

struct Nth {
    std::ptrdiff_t a, b;
};

/// "odd", "even", "3", "2n", "-n+2" and the like, in lower case.
std::optional<Nth> parseNth(const std::string &text) {
    if (text == "odd") return Nth{2, 1};
    if (text == "even") return Nth{2, 0};
    static const Pattern steps = Pattern::compile(R"(^((\+|-)?(\d+)?)n(\s*(\+|-)?\s*\d+)?$)");
    static const Pattern place = Pattern::compile(R"(^(\+|-)?(\d+)$)");
    if (Matcher matcher = steps.matcher(text); matcher.find()) {
        const std::string sign = matcher.group(2).value_or("");
        std::string offset = matcher.group(4).value_or("0");
        std::erase_if(offset, [](char c) { return StringUtil::isWhitespace({&c, 1}) || c == '\v'; });
        return Nth{numberOf(sign + matcher.group(3).value_or("1")), numberOf(offset)};
    }
    if (Matcher matcher = place.matcher(text); matcher.find()) return Nth{0, numberOf(text)};
    return {};
}

class Parser {
public:
    /// `depth` is how many levels the result may nest.
    Parser(std::string_view query, int depth) : tq_(trimmed(query)), query_(tq_.toString()), depth_(depth) {}

    EvaluatorPtr parse() {
        if (tq_.matchesAny(combinators)) {
            add<StructuralEvaluator::Root>();
            combinator(tq_.consume().front());
        } else {
            findElements();
        }
        while (!tq_.isEmpty()) {
            const bool seenWhite = tq_.consumeWhitespace();
            if (tq_.matchesAny(combinators))
                combinator(tq_.consume().front());
            else if (seenWhite)
                combinator(' ');
            else
                findElements();
        }
        return takeAll();
    }

private:
    template<class E, class... Args>
    void add(Args &&...args) {
        evals_.push_back(std::make_shared<E>(std::forward<Args>(args)...));
    }

    /// The evaluators so far, as one.
    EvaluatorPtr takeAll() {
        EvaluatorPtr all = evals_.size() == 1 ? evals_.front() : makeAnd(evals_);
        evals_.clear();
        return all;
    }
    static EvaluatorPtr makeAnd(std::vector<EvaluatorPtr> evaluators) {
        return std::make_shared<CombiningEvaluator::And>(std::move(evaluators));
    }

    EvaluatorPtr nested(std::string_view query) {
        if (depth_ <= 1) failParsing("Could not parse query " + query_ + ": it nests too deep");
        return Parser(query, depth_ - 1).parse();
    }

    // ---- Combinators

    void combinator(char combinator) {
        tq_.consumeWhitespace();
        EvaluatorPtr newEval = nested(consumeSubQuery());
        EvaluatorPtr currentEval = takeAll();
        // What follows an alternative belongs to its last part, and the whole stays the alternative.
        auto rootEval = std::dynamic_pointer_cast<CombiningEvaluator::Or>(currentEval);
        if (combinator == ',') {
            if (!rootEval)
                rootEval = std::make_shared<CombiningEvaluator::Or>(std::vector<EvaluatorPtr>{currentEval});
            rootEval->add(newEval);
            evals_ = {rootEval};
            return;
        }
        --depth_;
        if (!rootEval) {
            evals_ = {makeAnd({newEval, relation(combinator, currentEval)})};
            return;
        }
        rootEval->replaceRightMostEvaluator(
            makeAnd({newEval, relation(combinator, rootEval->rightMostEvaluator())}));
        evals_ = {rootEval};
    }

    static EvaluatorPtr relation(char combinator, EvaluatorPtr to) {
        using S = StructuralEvaluator;
        switch (combinator) {
        case '>': return std::make_shared<S::ImmediateParent>(std::move(to));
        case ' ': return std::make_shared<S::Parent>(std::move(to));
        case '+': return std::make_shared<S::ImmediatePreviousSibling>(std::move(to));
        case '~': return std::make_shared<S::PreviousSibling>(std::move(to));
        }
        failParsing(std::string("Unknown combinator: ") + combinator);
    }

    /// Up to the next combinator that stands outside of brackets.
    std::string consumeSubQuery() {
        std::string query;
        while (!tq_.isEmpty() && !tq_.matchesAny(combinators) && !tq_.matchesWhitespace()) {
            if (tq_.matchesCS("("))
                query.append("(").append(tq_.chompBalanced('(', ')')).append(")");
            else if (tq_.matchesCS("["))
                query.append("[").append(tq_.chompBalanced('[', ']')).append("]");
            else
                query += tq_.consume();
        }
        return query;
    }

    // ---- One predicate

    void findElements() {
        if (tq_.matchChomp("#")) return byId();
        if (tq_.matchChomp(".")) return byClass();
        if (tq_.matchesWord() || tq_.matches("*|")) return byTag();
        if (tq_.matches("[")) return byAttribute();
        if (tq_.matchChomp("*")) return add<Evaluator::AllElements>();
        if (tq_.matchChomp(":lt(")) return add<Evaluator::IndexLessThan>(consumeIndex());
        if (tq_.matchChomp(":gt(")) return add<Evaluator::IndexGreaterThan>(consumeIndex());
        if (tq_.matchChomp(":eq(")) return add<Evaluator::IndexEquals>(consumeIndex());
        if (tq_.matches(":has(")) return has();
        if (tq_.matches(":contains(")) return contains(false);
        if (tq_.matches(":containsOwn(")) return contains(true);
        if (tq_.matches(":matches(")) return matches(false);
        if (tq_.matches(":matchesOwn(")) return matches(true);
        if (tq_.matches(":not(")) return isNot();
        if (tq_.matchChomp(":nth-child(")) return cssNthChild<Evaluator::IsNthChild>();
        if (tq_.matchChomp(":nth-last-child(")) return cssNthChild<Evaluator::IsNthLastChild>();
        if (tq_.matchChomp(":nth-of-type(")) return cssNthChild<Evaluator::IsNthOfType>();
        if (tq_.matchChomp(":nth-last-of-type(")) return cssNthChild<Evaluator::IsNthLastOfType>();
        if (tq_.matchChomp(":first-child")) return add<Evaluator::IsFirstChild>();
        if (tq_.matchChomp(":last-child")) return add<Evaluator::IsLastChild>();
        if (tq_.matchChomp(":first-of-type")) return add<Evaluator::IsFirstOfType>();
        if (tq_.matchChomp(":last-of-type")) return add<Evaluator::IsLastOfType>();
        if (tq_.matchChomp(":only-child")) return add<Evaluator::IsOnlyChild>();
        if (tq_.matchChomp(":only-of-type")) return add<Evaluator::IsOnlyOfType>();
        if (tq_.matchChomp(":empty")) return add<Evaluator::IsEmpty>();
        if (tq_.matchChomp(":root")) return add<Evaluator::IsRoot>();
        failParsing("Could not parse query " + query_ + ": unexpected token at " + tq_.remainder());
    }

    void byId() { add<Evaluator::Id>(notEmpty(std::string_view(tq_.consumeCssIdentifier()))); }

    void byClass() { add<Evaluator::Class>(notEmpty(trimmed(tq_.consumeCssIdentifier()))); }

    void byTag() {
        const std::string text = tq_.consumeElementSelector();
        std::string name = lowerCase(trimmed(notEmpty(std::string_view(text))));
        if (name.starts_with("*|")) {
            name = notEmpty(std::string_view(name).substr(2));
            return add<CombiningEvaluator::Or>(
                std::vector<EvaluatorPtr>{std::make_shared<Evaluator::Tag>(name),
                                          std::make_shared<Evaluator::TagEndsWith>(":" + name)});
        }
        for (std::size_t bar; (bar = name.find('|')) != std::string::npos;)
            name[bar] = ':';
        add<Evaluator::Tag>(name);
    }

    void byAttribute() {
        TokenQueue cq(tq_.chompBalanced('[', ']'));
        const std::string text = cq.consumeToAny({"=", "!=", "^=", "$=", "*=", "~="});
        const std::string key = notEmpty(trimmed(text));
        cq.consumeWhitespace();
        if (cq.isEmpty()) {
            if (key.starts_with('^')) return add<Evaluator::AttributeStarting>(key.substr(1));
            return add<Evaluator::Attribute>(key);
        }
        if (cq.matchChomp("=")) return byValue<Evaluator::AttributeWithValue>(key, cq);
        if (cq.matchChomp("!=")) return byValue<Evaluator::AttributeWithValueNot>(key, cq);
        if (cq.matchChomp("^=")) return byValue<Evaluator::AttributeWithValueStarting>(key, cq);
        if (cq.matchChomp("$=")) return byValue<Evaluator::AttributeWithValueEnding>(key, cq);
        if (cq.matchChomp("*=")) return byValue<Evaluator::AttributeWithValueContaining>(key, cq);
        if (cq.matchChomp("~="))
            return add<Evaluator::AttributeWithValueMatching>(key, validPattern(cq.remainder()));
        failParsing("Could not parse attribute query '" + query_ + "': unexpected token at '" +
                    cq.remainder() + "'");
    }

    template<class E>
    void byValue(const std::string &key, TokenQueue &cq) {
        add<E>(key, trimmed(cq.remainder()));
    }

    std::ptrdiff_t consumeIndex() {
        const std::string text = tq_.chompTo(")");
        const std::string_view index = trimmed(text);
        if (!StringUtil::isNumeric(index)) core::failArgument("Index must be numeric");
        return numberOf(index);
    }

    /// What stands in the brackets after the name that is next.
    std::string consumeArgument() {
        tq_.consumeTo("(");
        return tq_.chompBalanced('(', ')');
    }

    void has() {
        const std::string query = notEmpty(consumeArgument(), ":has(el) subselect must not be empty");
        add<StructuralEvaluator::Has>(nested(query));
    }

    void isNot() {
        const std::string query = notEmpty(consumeArgument(), ":not(selector) subselect must not be empty");
        add<StructuralEvaluator::Not>(nested(query));
    }

    void contains(bool own) {
        const std::string text =
            notEmpty(TokenQueue::unescape(consumeArgument()), ":contains(text) query must not be empty");
        if (own) return add<Evaluator::ContainsOwnText>(text);
        add<Evaluator::ContainsText>(text);
    }

    void matches(bool own) {
        const std::string regex = notEmpty(consumeArgument(), ":matches(regex) query must not be empty");
        if (own) return add<Evaluator::MatchesOwn>(validPattern(regex));
        add<Evaluator::Matches>(validPattern(regex));
    }

    template<class E>
    void cssNthChild() {
        const std::string text = tq_.chompTo(")");
        const std::string argument = lowerCase(trimmed(text));
        const auto nth = parseNth(argument);
        if (!nth) failParsing("Could not parse nth-index '" + argument + "': unexpected format");
        add<E>(nth->a, nth->b);
    }

    TokenQueue tq_;
    std::string query_;
    std::vector<EvaluatorPtr> evals_;
    int depth_;
};

} // namespace

EvaluatorPtr QueryParser::parse(std::string_view query) {
    const std::string text =
        core::validPrefix(query) == query.size() ? std::string(query) : core::repaired(query);
    core::checkNotEmpty(trimmed(text));
    return Parser(text, maxDepth).parse();
}

} // namespace orl::html
