HandlerMeta m(3);

m.add("MtlA")
	.add("diffuse", HandlerTypes::Color, 0.5f)
	.add("opacity", HandlerTypes::Float)
	.add("tint", HandlerTypes::Color, 1.f, 0.5f, 0.25f);

m.add("TexB")
	.add("alpha", HandlerTypes::Duplicate);

return m;
