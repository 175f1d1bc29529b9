// Prints the tree in a file of cad_host's JSON as the lines of its text form, without the notes on the blocks.
const tree = JSON.parse(require('fs').readFileSync(process.argv[2])).tree;

function colorText(color) {
    return color ? ' #' + color.slice(0, 3).map((c) => c.toString(16).padStart(2, '0')).join('') : '';
}

function print(nodes, indent) {
    const groups = new Map();
    for (const node of nodes) {
        const key = node.block_id + colorText(node.color);
        groups.set(key, [...(groups.get(key) ?? []), node]);
    }
    for (const group of groups.values()) {
        const [first, last] = [group[0], group[group.length - 1]];
        const names = group.length > 1 ? `${first.name} .. ${last.name}` : first.name;
        const count = group.length > 1 ? ` x${group.length}` : '';
        console.log(`${indent}${names} (${first.block})${count}${colorText(first.color)}`);
        print(first.children, indent + '  ');
    }
}

print(tree, '');
