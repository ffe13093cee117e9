"""Summaries as metagen combine prints them."""

SUMMARY = """\
Lamp has an odd default
Number of changed plugin types: 2
1. Lamp  "light" -> "node"
2. Own   -> "light"

Changed parameter types: 1
1. Lamp::size  "float" -> "integer"

Overriding defaultValue:3
1. Lamp::color  "Color(1, 1, 1)" -> "a  \\"b\\" -> \\"c\\""
2. Lamp::size  "1" -> "2"
3. Two  blanks::new   -> "1"

Number of handler integrity checks failures: 2
1. Lamp::color: _tex_* user data is missing
2. Lamp: the plugin has float texture handler(s) but no 'texture_multiplier_mode' "

Number of deprecations: 2
1. Gone::
2. Lamp::old

Number of duplications: 7
1. Lamp::::type::"light"
2. Lamp::size::defaultValue::"1"
3. Map::a::type::"texture"
4. Map::b::type::"texture"
5. Sun::size::type::"float"
6. Sun::size::type::"light"
7. Zoo::a::type::"bool"
"""

EMPTY_SUMMARY = """\
Number of changed plugin types: 0

Changed parameter types: 0

Overriding defaultValue:0

Number of handler integrity checks failures: 0

Number of deprecations: 0

Number of duplications: 0
"""
