// The whole engine.
#pragma once

#include <orl/html/attributes.h>
#include <orl/html/cleaner.h>
#include <orl/html/css_selector.h>
#include <orl/html/data_util.h>
#include <orl/html/document.h>
#include <orl/html/element.h>
#include <orl/html/elements.h>
#include <orl/html/entities.h>
#include <orl/html/evaluator.h>
#include <orl/html/exception.h>
#include <orl/html/node.h>
#include <orl/html/ordered_set.h>
#include <orl/html/output_settings.h>
#include <orl/html/parse_error_list.h>
#include <orl/html/parse_settings.h>
#include <orl/html/parser.h>
#include <orl/html/pattern.h>
#include <orl/html/query_parser.h>
#include <orl/html/simple_dictionary.h>
#include <orl/html/string_builder.h>
#include <orl/html/string_util.h>
#include <orl/html/tag.h>
#include <orl/html/text_encoding.h>
#include <orl/html/whitelist.h>
