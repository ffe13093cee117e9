meta:
  id: handlers
  title: Handler metadata
  file-extension: bin
  endian: le
  encoding: UTF-8
doc: |
  The <code>.bin file of `metagen genh`: per plugin class, the parameters that a handler of the
  host application serves, each with its kind and, where it is not the host's own, its default.
  The file ends with the last parameter.
doc-ref: bin-formats.md
seq:
  - id: tag
    contents: HDLR
  - id: version
    type: s4
    doc: The document's version, truncated toward zero; -2147483648 when 32 bits can't hold it.
  - id: num_plugins
    type: u4
  - id: plugins
    type: plugin
    repeat: expr
    repeat-expr: num_plugins
types:
  text:
    seq:
      - id: len_value
        type: u4
      - id: value
        type: str
        size: len_value
  plugin:
    seq:
      - id: name
        type: text
      - id: num_parameters
        type: u4
      - id: parameters
        type: parameter
        repeat: expr
        repeat-expr: num_parameters
  parameter:
    seq:
      - id: name
        type: text
      - id: kind
        type: u4
        enum: kind
        valid:
          in-enum: true
      - id: num_arguments
        type: u4
        valid:
          any-of: [0, 1, 3]
        doc: |
          0 when the default is the host's own (the number 1, a white colour) or there is none, 1
          for a number or a grey colour, 3 for red, green and blue.
      - id: arguments
        type: f4
        repeat: expr
        repeat-expr: num_arguments
enums:
  kind:
    1: float
    2: color
    6: duplicate
