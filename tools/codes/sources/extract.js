// Takes from the unpacked packages what the generator needs, and writes it beside this script.
//
//     node extract.js FOLDER
//
// FOLDER holds each package as `npm pack NAME@VERSION` and `tar xzf` leave it, under html-validate/,
// browser-compat-data/, webref-idl/, mdn-data/ and markuplint-html-spec/. Only who moves to newer versions runs this.
"use strict";

const fs = require("fs");
const path = require("path");

const packages = path.resolve(process.argv[2] || ".");

function inPackage(...names) {
    return path.join(packages, ...names);
}

function sortedByKey(object) {
    return Object.fromEntries(Object.entries(object).sort(([a], [b]) => (a < b ? -1 : a > b ? 1 : 0)));
}

function write(folder, name, value) {
    const file = path.join(__dirname, folder, name);
    fs.mkdirSync(path.dirname(file), { recursive: true });
    fs.writeFileSync(file, JSON.stringify(value, null, 1) + "\n");
}

// Patterns, which are written /.../, are no words that one could offer.
function htmlValidateAttribute(attribute) {
    const kept = {};
    if (attribute.deprecated) kept.deprecated = true;
    if (attribute.boolean) kept.boolean = true;
    if (attribute.omit) kept.omit = true;
    const words = (attribute.enum || []).filter((value) => typeof value === "string" && /^[^/]/.test(value));
    if (words.length > 0) kept.values = words;
    return kept;
}

function htmlValidateElements() {
    const { html5 } = require(inPackage("html-validate", "dist", "cjs", "elements.js"));
    const kept = {};
    for (const [name, element] of Object.entries(html5)) {
        const attributes = {};
        for (const [attribute, value] of Object.entries(element.attributes || {})) {
            attributes[attribute] = htmlValidateAttribute(value);
        }
        kept[name] = { attributes: sortedByKey(attributes) };
        if (element.deprecated) kept[name].deprecated = true;
        if (element.void) kept[name].void = true;
    }
    return sortedByKey(kept);
}

// What an element may not hold at any depth, and the names of character references: what a check of a page needs beyond
// the names of elements and attributes. Conditions that are functions are no data, and left out.
function htmlValidateContent() {
    const { html5, entities } = require(inPackage("html-validate", "dist", "cjs", "elements.js"));
    const kept = {};
    for (const [name, element] of Object.entries(html5)) {
        const excluded = (element.permittedDescendants || []).flatMap((rule) => (rule && rule.exclude) || []);
        if (excluded.length > 0) kept[name] = { notWithin: excluded };
    }
    const names = (entities || []).map((name) => name.replace(/^&/, "")).sort();
    return { elements: sortedByKey(kept), references: names };
}

// The structure alone: no sentence of the package, whose texts are of other sources.
function markuplintAttribute(attribute) {
    const kept = {};
    for (const key of ["type", "required", "requiredEither", "condition", "deprecated", "experimental", "nonStandard"]) {
        if (attribute[key] !== undefined) kept[key] = attribute[key];
    }
    return kept;
}

function markuplintAttributes(attributes) {
    const kept = {};
    for (const [name, attribute] of Object.entries(attributes || {})) kept[name] = markuplintAttribute(attribute);
    return sortedByKey(kept);
}

function markuplintStructure() {
    const { def, specs } = JSON.parse(fs.readFileSync(inPackage("markuplint-html-spec", "index.json"), "utf8"));
    const elements = {};
    for (const spec of specs.filter((one) => !one.name.includes(":"))) {
        const kept = { content: spec.contentModel, attributes: markuplintAttributes(spec.attributes) };
        kept.shared = spec.globalAttrs;
        elements[spec.name] = kept;
    }
    const shared = {};
    for (const [name, attributes] of Object.entries(def["#globalAttrs"])) {
        if (!/SVG|XLink|MathML|Event/.test(name)) shared[name] = markuplintAttributes(attributes);
    }
    const groups = {};
    for (const [name, members] of Object.entries(def["#contentModels"])) {
        if (!/SVG|MathML/.test(name)) groups[name] = members;
    }
    const aria = def["#aria"]["1.3"];
    const roles = [...aria.roles, ...aria.graphicsRoles, ...aria.dpubRoles];
    return {
        elements: sortedByKey(elements),
        shared: sortedByKey(shared),
        groups: sortedByKey(groups),
        roles: roles.filter((role) => !role.isAbstract).map((role) => role.name).sort(),
        aria: aria.props.map((property) => property.name).sort(),
    };
}

// Where a feature stands: on its way out, not yet settled, or in no standard at all.
function standing(feature) {
    const status = (feature.__compat && feature.__compat.status) || {};
    const kept = {};
    if (status.deprecated) kept.deprecated = true;
    if (status.experimental) kept.experimental = true;
    if (status.standard_track === false) kept.nonstandard = true;
    return kept;
}

function features(parent) {
    const kept = {};
    for (const [name, feature] of Object.entries(parent)) {
        if (name === "__compat") continue;
        kept[name] = standing(feature);
        const inner = features(feature);
        if (Object.keys(inner).length > 0) kept[name].features = inner;
    }
    return sortedByKey(kept);
}

function browserCompatData() {
    const { html } = JSON.parse(fs.readFileSync(inPackage("browser-compat-data", "data.json"), "utf8"));
    return { elements: features(html.elements), globalAttributes: features(html.global_attributes) };
}

// The elements of another language that stand under an element of HTML, with their attributes and those of all of them.
function browserLanguage(language) {
    const data = JSON.parse(fs.readFileSync(inPackage("browser-compat-data", "data.json"), "utf8"))[language];
    return { elements: features(data.elements), globalAttributes: features(data.global_attributes) };
}

// The browsers whose makers go on with them.
const BROWSERS = ["chrome", "chrome_android", "edge", "firefox", "firefox_android", "safari", "safari_ios"];

// The names under which a browser of today knows a property without being told to: its own, with a prefix, or another.
function livingNames(name, feature) {
    const found = new Set();
    for (const browser of BROWSERS) {
        for (const support of [feature.__compat.support[browser] || []].flat()) {
            const settled = support.version_added && support.version_added !== "preview" && !support.flags;
            if (settled && !support.version_removed) found.add(support.alternative_name || (support.prefix || "") + name);
        }
    }
    return found;
}

// Each living name of a property with the property it stands for.
function browserCss() {
    const { css, __meta } = JSON.parse(fs.readFileSync(inPackage("browser-compat-data", "data.json"), "utf8"));
    const names = {};
    for (const [name, feature] of Object.entries(css.properties)) {
        for (const living of livingNames(name, feature)) names[living] = name;
    }
    for (const name of Object.keys(css.properties)) {
        if (name in names) names[name] = name;
    }
    return { version: __meta.version, names: sortedByKey(names) };
}

function handlersIn(text, mixin) {
    const names = [];
    const block = new RegExp(`interface mixin ${mixin} \\{([^}]*)\\}`, "g");
    for (const [, body] of text.matchAll(block)) {
        for (const [, name] of body.matchAll(/attribute \w*EventHandler (\w+);/g)) names.push(name);
    }
    return names;
}

function eventHandlers() {
    const kept = {};
    const folder = inPackage("webref-idl");
    for (const file of fs.readdirSync(folder).filter((name) => name.endsWith(".idl")).sort()) {
        const text = fs.readFileSync(path.join(folder, file), "utf8");
        const found = {};
        for (const mixin of ["GlobalEventHandlers", "WindowEventHandlers"]) {
            const names = handlersIn(text, mixin);
            if (names.length > 0) found[mixin] = names;
        }
        if (Object.keys(found).length > 0) kept[path.basename(file, ".idl")] = found;
    }
    return kept;
}

function css() {
    const read = (name) => JSON.parse(fs.readFileSync(inPackage("mdn-data", "css", name), "utf8"));
    const properties = {};
    for (const [name, property] of Object.entries(read("properties.json"))) {
        properties[name] = { syntax: property.syntax, status: property.status };
    }
    const syntaxes = {};
    for (const [name, syntax] of Object.entries(read("syntaxes.json"))) syntaxes[name] = syntax.syntax;
    return { properties: sortedByKey(properties), syntaxes: sortedByKey(syntaxes) };
}

write("html-validate", "elements.json", htmlValidateElements());
write("browser-compat-data", "html.json", browserCompatData());
write("browser-compat-data", "svg.json", browserLanguage("svg"));
write("browser-compat-data", "mathml.json", browserLanguage("mathml"));
write("browser-compat-data", "css.json", browserCss());
write("webref-idl", "eventHandlers.json", eventHandlers());
write("mdn-data", "css.json", css());
write("html-validate", "content.json", htmlValidateContent());
write("markuplint-html-spec", "structure.json", markuplintStructure());
