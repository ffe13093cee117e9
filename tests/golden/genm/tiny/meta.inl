//unique value arrays
static constexpr float clr0[] = { 1.f, 1.f, 1.f};
static constexpr float clr1[] = { 0.f, 0.f, 0.f, 1.f, 1.f, 1.f};
static constexpr float flt0[] = { 1.f, 0.5f, 0.25f};
static constexpr float aclr0[] = { 1.f, 1.f, 1.f, 0.f};
static constexpr int inte0[] = { 3, -1};
static constexpr float vec0[] = { 1.f, 1.f, 1.f};
static constexpr float trans0[] = { 1.f, 0.f, 0.f, 0.f, 1.f, 0.f, 0.f, 0.f, 1.f, 0.f, 0.f, 0.5f};
static constexpr float matr0[] = { 1.f, 0.f, 0.f, 0.f, 1.f, 0.f, 0.f, 0.f, 1.f};

Meta m(3.5);

m.add("Environment", "");

m.add("LightSphere", "light")
	.add("color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr0)
	.add("color_tex", "plugin", 1, "")
	.add("exposure", "float", 0, -0.333333f)
	.add("falloff", "float", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST, flt0)
	.add("filter", "color texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0)
	.add("gobo", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr0)
	.add("groups", "integer", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST, inte0)
	.add("image", "string", 6, "C:\\maps\\\"sky\".png")
	.add("log", "string", 2, "")
	.add("on", "bool", 0, 1)
	.add("radius", "float", 0, 2.f)
	.add("reach", "float texture", 1, 0.f)
	.add("samples", "integer", 0, 0)
	.add("shape", "integer", 0, INT_MIN)
	.add("units", "float", 0, 1e+06f);

m.add("MtlGlass", "material")
	.add("absorption", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr0)
	.add("axis", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, vec0)
	.add("bend", "vector", 0, "")
	.add("frame", "transform", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_SINGLE, trans0)
	.add("layers", "plugin", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("names", "list", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("ramp", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST, clr1)
	.add("rotation", "matrix", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_9 | qymat::SQDT_SINGLE, matr0)
	.add("tint", "acolor", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0);

m.fileParams = {
	{ "LightSphere", {"image", "log"}}
};

m.inputFileParams = {
	{ "LightSphere", {"image"}}
};

m.scalingParams = {
	{ "LightSphere", {
		{ "radius", {} },
		{ "reach", { Scaling::UnitType::Scene, 2, {} }},
		{ "units", { Scaling::UnitType::Scene, -2, true, {
			{ "shape", Scaling::Operation::Equals, 2 },
			{ "on", Scaling::Operation::Equals, 1 },
			{ "radius", Scaling::Operation::Equals, 0.1f }
		}}}
	}}
};

return m;
